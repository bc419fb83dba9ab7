#include "host/commands/command.hpp"
#include "host/commands/gallery_listing.hpp"
#include "host/commands/question.hpp"
#include "host/commands/world_options.hpp"

namespace host {

namespace {

struct Gallery {
  explicit Gallery(const Surroundings& surroundings) : extension(surroundings.extension), device(surroundings) {}

  Outcome run() const {
    const auto world = device.world();
    if (!world) return std::unexpected(world.error());
    ExtensionProcess process({.program = extension});
    const auto catalogue =
        question<messages::Catalogue>(process, {.world = *world, .request = messages::DescribeCatalogue{}});
    if (!catalogue) return std::unexpected(catalogue.error());
    return asJSON ? galleryJSON(*catalogue) : galleryTable(*catalogue);
  }

  std::filesystem::path extension;
  WorldOptions device;
  bool asJSON = false;
};

}  // namespace

Command galleryCommand() {
  return {.name = "gallery",
          .summary = "List the widget kinds and the families that they offer",
          .declare = [](CLI::App& app, const Surroundings& surroundings) -> std::function<Outcome()> {
            auto gallery = std::make_shared<Gallery>(surroundings);
            app.add_flag("--json", gallery->asJSON, "Print JSON instead of a table");
            gallery->device.addTo(app);
            return [gallery] { return gallery->run(); };
          }};
}

}  // namespace host
