#include <algorithm>
#include <array>
#include <filesystem>

#include "host/commands/command.hpp"
#include "host/commands/moment.hpp"
#include "host/commands/picture_file.hpp"
#include "host/commands/question.hpp"
#include "host/commands/world_options.hpp"
#include "schedule/entry_dates.hpp"

namespace host {

namespace {

using foundation::JSON;
using messages::PictureFormat;

constexpr std::array endings{PictureFormat::png, PictureFormat::svg, PictureFormat::pdf, PictureFormat::text,
                             PictureFormat::json};

struct Render {
  explicit Render(const Surroundings& surroundings) : extension(surroundings.extension), device(surroundings) {}

  Outcome run() const {
    const auto format = pictureFormat(file, endings);
    if (!format) return std::unexpected(format.error());
    const auto pixels = pictureScale(scale);
    if (!pixels) return std::unexpected(pixels.error());
    auto world = device.world();
    if (!world) return std::unexpected(world.error());
    const auto drawn = moment("--at", at, world->now);
    if (!drawn) return std::unexpected(drawn.error());

    ExtensionProcess process({.program = extension});
    auto entry = entryShown(process, *world, *drawn);
    if (!entry) return std::unexpected(entry.error());
    world->now = *drawn;
    const messages::DrawEntry request = {
        .kind = kind, .family = family, .entry = std::move(*entry), .format = *format, .scale = *pixels};
    const auto picture = question<messages::Picture>(process, {.world = *world, .request = request});
    if (!picture) return std::unexpected(picture.error());

    return savePicture(file, *picture);
  }

  std::expected<JSON, messages::Failure> entryShown(ExtensionProcess& process, const messages::World& world,
                                                    foundation::Date moment) const {
    for (const auto operation : {messages::ProviderOperation::timeline, messages::ProviderOperation::placeholder}) {
      const auto timeline = question<messages::Timeline>(
          process, {.world = world, .request = messages::AskProvider{.operation = operation, .kind = kind}});
      if (!timeline) return std::unexpected(timeline.error());
      const auto dates = EntryDates::of(*timeline);
      if (!dates) return failed("the widget extension sent an entry without a date");
      if (const auto shown = dates->shown(moment)) return timeline->wholeEntry(shown->index);
    }
    return failed("the widget extension has no entry for " + kind);
  }

  std::filesystem::path extension;
  WorldOptions device;
  std::string kind;
  std::string family;
  std::string file;
  std::optional<std::string> at;
  double scale = 2;
};

}  // namespace

Command renderCommand() {
  return {
      .name = "render",
      .summary = "Draw one widget into a file",
      .declare = [](CLI::App& app, const Surroundings& surroundings) -> std::function<Outcome()> {
        auto render = std::make_shared<Render>(surroundings);
        app.add_option("KIND", render->kind, "Kind of widget: its identifier or short name (see mirune gallery)")
            ->required()
            ->option_text(" ");
        app.add_option("FAMILY", render->family, "Size class: systemSmall, systemMedium, accessoryCircular, …")
            ->required()
            ->option_text(" ");
        app.add_option(
               "-o,--output", render->file,
               "The file; its ending chooses picture (.png, .svg, .pdf), plain text (.txt) or placed elements (.json)")
            ->required()
            ->option_text("FILE");
        app.add_option("--at", render->at, "Moment at which the widget is seen (else --now); picks the entry")
            ->type_name("MOMENT");
        app.add_option("--scale", render->scale, "Pixels per point, 0.1 to 10 (else 2)")->type_name("N");
        render->device.addTo(app);
        return [render] { return render->run(); };
      }};
}

}  // namespace host
