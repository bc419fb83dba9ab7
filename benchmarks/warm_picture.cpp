// One picture after the other from a process that stays: the medium widget of tasks at twice its size. And what writing
// the file takes of that, with the writer that draws it and with Cairo's own.

#include <benchmark/benchmark.h>
#include <cairo.h>

#include <cstring>
#include <memory>
#include <string>
#include <string_view>

#include "host/states/scratch_folder.hpp"
#include "measuring/extension.hpp"
#include "measuring/sample.hpp"
#include "rendering/png_encoder.hpp"

namespace {

/// Draws the picture.
class Painter {
 public:
  Painter() {
    measuring::writeSampleContainer(folder_.path());
    entry_ = extension_.timeline(kind, measuring::morning()).wholeEntry(0);
  }

  std::string png() {
    return extension_.picture(kind, "systemMedium", entry_, messages::PictureFormat::png, measuring::morning());
  }

 private:
  static constexpr const char* kind = "tasks";

  host::ScratchFolder folder_;
  measuring::Extension extension_{measuring::worldWith(folder_.path())};
  foundation::JSON entry_;
};

using Surface = std::unique_ptr<cairo_surface_t, decltype(&cairo_surface_destroy)>;

/// The picture's pixels, in the format in which they were drawn.
Surface drawnSurface() {
  const std::string file = Painter().png();
  std::string_view rest = file;
  const auto take = [](void* bytes, unsigned char* to, unsigned int length) {
    auto& left = *static_cast<std::string_view*>(bytes);
    if (left.size() < length) return CAIRO_STATUS_READ_ERROR;
    std::memcpy(to, left.data(), length);
    left.remove_prefix(length);
    return CAIRO_STATUS_SUCCESS;
  };
  return {cairo_image_surface_create_from_png_stream(take, &rest), cairo_surface_destroy};
}

void picture(benchmark::State& state) {
  Painter painter;
  for (auto _ : state) benchmark::DoNotOptimize(painter.png());
}

void ownFile(benchmark::State& state) {
  const Surface surface = drawnSurface();
  for (auto _ : state) benchmark::DoNotOptimize(rendering::encodePNG(surface.get()));
}

void cairosFile(benchmark::State& state) {
  const Surface surface = drawnSurface();
  const auto append = [](void* file, const unsigned char* data, unsigned int length) {
    static_cast<std::string*>(file)->append(reinterpret_cast<const char*>(data), length);
    return CAIRO_STATUS_SUCCESS;
  };
  for (auto _ : state) {
    std::string file;
    if (cairo_surface_write_to_png_stream(surface.get(), append, &file) != CAIRO_STATUS_SUCCESS) {
      state.SkipWithError("Cairo wrote no file");
    }
    benchmark::DoNotOptimize(file);
  }
}

BENCHMARK(picture)->Unit(benchmark::kMillisecond);
BENCHMARK(ownFile)->Unit(benchmark::kMillisecond);
BENCHMARK(cairosFile)->Unit(benchmark::kMillisecond);

}  // namespace
