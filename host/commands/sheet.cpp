#include <unistd.h>

#include <array>
#include <iostream>

#include "host/commands/command.hpp"
#include "host/commands/picture_file.hpp"
#include "host/commands/question.hpp"
#include "host/commands/world_options.hpp"

namespace host {

namespace {

using messages::PictureFormat;

constexpr std::array endings{PictureFormat::png, PictureFormat::svg, PictureFormat::pdf};

/// A line that says how far a long answer is, on a terminal only; it is gone when this is.
class ProgressLine {
 public:
  ProgressLine() = default;
  ProgressLine(const ProgressLine&) = delete;
  ProgressLine& operator=(const ProgressLine&) = delete;
  ~ProgressLine() {
    if (isShown_) std::cerr << "\r\033[K" << std::flush;
  }

  void show(const messages::Progress& progress) {
    if (isatty(STDERR_FILENO) == 0) return;
    isShown_ = true;
    std::cerr << "\r\033[KDrawing widget " << progress.done + 1 << " of " << progress.total << std::flush;
  }

 private:
  bool isShown_ = false;
};

struct Sheet {
  explicit Sheet(const Surroundings& surroundings) : extension(surroundings.extension), device(surroundings) {}

  Outcome run() const {
    const auto format = pictureFormat(file, endings);
    if (!format) return std::unexpected(format.error());
    const auto pixels = pictureScale(scale);
    if (!pixels) return std::unexpected(pixels.error());
    const auto world = device.world();
    if (!world) return std::unexpected(world.error());
    ExtensionProcess process({.program = extension});
    ProgressLine line;
    const auto picture = question<messages::Picture>(
        process, {.world = *world, .request = messages::DrawSheet{.format = *format, .scale = *pixels}},
        [&](const messages::Progress& progress) { line.show(progress); });
    if (!picture) return std::unexpected(picture.error());
    return savePicture(file, *picture);
  }

  std::filesystem::path extension;
  WorldOptions device;
  std::string file;
  double scale = 2;
};

}  // namespace

Command sheetCommand() {
  return {.name = "sheet",
          .summary = "Draw every kind in every family that it offers, on one sheet",
          .declare = [](CLI::App& app, const Surroundings& surroundings) -> std::function<Outcome()> {
            auto sheet = std::make_shared<Sheet>(surroundings);
            app.add_option("-o,--output", sheet->file, "The file; its ending chooses the form: .png, .svg, .pdf")
                ->required()
                ->option_text("FILE");
            app.add_option("--scale", sheet->scale, "Pixels per point, 0.1 to 10 (else 2)")->type_name("N");
            sheet->device.addTo(app);
            return [sheet] { return sheet->run(); };
          }};
}

}  // namespace host
