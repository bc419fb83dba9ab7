#include <unistd.h>

#include <array>
#include <iostream>

#include "host/commands/command.hpp"
#include "host/commands/picture_file.hpp"
#include "host/commands/question.hpp"
#include "host/commands/world_options.hpp"
#include "host/states/scratch_folder.hpp"
#include "host/states/state_container.hpp"

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
  explicit Sheet(const Surroundings& surroundings)
      : extension(surroundings.extension), resources(surroundings.resources), device(surroundings) {}

  Outcome run() const {
    const auto pixels = pictureScale(scale);
    if (!pixels) return std::unexpected(pixels.error());
    const auto world = device.world();
    if (!world) return std::unexpected(world.error());
    ExtensionProcess process({.program = extension});
    if (drawsStates) return drawStates(process, *world, *pixels);
    const auto format = pictureFormat(file, endings);
    if (!format) return std::unexpected(format.error());
    return draw(process, *world, {.format = *format, .scale = *pixels}, file);
  }

  Outcome draw(ExtensionProcess& process, const messages::World& world, const messages::DrawSheet& sheet,
               const std::string& target) const {
    ProgressLine line;
    const auto picture = question<messages::Picture>(process, {.world = world, .request = sheet},
                                                     [&](const messages::Progress& progress) { line.show(progress); });
    if (!picture) return std::unexpected(picture.error());
    return savePicture(target, *picture);
  }

  Outcome drawStates(ExtensionProcess& process, const messages::World& given, double pixels) const {
    const std::filesystem::path folder = file;
    const auto states = readStates(resources / "states" / "states.json");
    if (!states) return failed(states.error());
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    if (error) return failed(folder.string() + ": " + error.message());
    std::string drawn;
    for (const WidgetState& state : *states) {
      const ScratchFolder scratch;
      const messages::World world = state.world(given, scratch.path() / "container");
      const auto written = writeStateContainer(state, world, resources / "demo", scratch.path() / "templates");
      if (!written) return failed(written.error());
      const std::string target = (folder / (state.name + ".png")).string();
      const auto saved = draw(process, world, {.format = PictureFormat::png, .scale = pixels}, target);
      if (!saved) return std::unexpected(saved.error());
      drawn += target + "\n";
    }
    return drawn;
  }

  std::filesystem::path extension;
  std::filesystem::path resources;
  WorldOptions device;
  std::string file;
  bool drawsStates = false;
  double scale = 2;
};

}  // namespace

Command sheetCommand() {
  return {.name = "sheet",
          .summary = "Draw every kind in every family that it offers, on one sheet",
          .declare = [](CLI::App& app, const Surroundings& surroundings) -> std::function<Outcome()> {
            auto sheet = std::make_shared<Sheet>(surroundings);
            app.add_option("-o,--output", sheet->file,
                           "The file; its ending chooses the form: .png, .svg, .pdf (with --states a folder)")
                ->required()
                ->option_text("FILE");
            app.add_option("--scale", sheet->scale, "Pixels per point, 0.1 to 10 (else 2)")->type_name("N");
            app.add_flag("--states", sheet->drawsStates,
                         "Draw a sheet for each state: an empty day, a full one, long words, other languages …");
            sheet->device.addTo(app);
            return [sheet] { return sheet->run(); };
          }};
}

}  // namespace host
