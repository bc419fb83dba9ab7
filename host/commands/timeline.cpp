#include "host/commands/command.hpp"
#include "host/commands/question.hpp"
#include "host/commands/timeline_listing.hpp"
#include "host/commands/world_options.hpp"

namespace host {

namespace {

struct Entries {
  Entries(messages::ProviderOperation wanted, const Surroundings& surroundings)
      : operation(wanted), extension(surroundings.extension), device(surroundings) {}

  Outcome run() const {
    const auto world = device.world();
    if (!world) return std::unexpected(world.error());
    ExtensionProcess process({.program = extension});
    const auto timeline = question<messages::Timeline>(
        process, {.world = *world, .request = messages::AskProvider{.operation = operation, .kind = kind}});
    if (!timeline) return std::unexpected(timeline.error());
    if (asJSON) return timelineJSON(*timeline);
    const auto timeZone = foundation::TimeZone::named(world->timeZone);
    return timelineListing(*timeline, timeZone.value_or(foundation::TimeZone()));
  }

  messages::ProviderOperation operation;
  std::filesystem::path extension;
  WorldOptions device;
  std::string kind;
  bool asJSON = false;
};

Command entriesCommand(messages::ProviderOperation operation, std::string name, std::string summary) {
  return {.name = std::move(name),
          .summary = std::move(summary),
          .declare = [operation](CLI::App& app, const Surroundings& surroundings) -> std::function<Outcome()> {
            auto entries = std::make_shared<Entries>(operation, surroundings);
            app.add_option("KIND", entries->kind, "Kind of widget: its identifier or short name (see mirune gallery)")
                ->required()
                ->option_text(" ");
            app.add_flag("--json", entries->asJSON, "Print JSON instead of a listing");
            entries->device.addTo(app);
            return [entries] { return entries->run(); };
          }};
}

}  // namespace

Command timelineCommand() {
  return entriesCommand(messages::ProviderOperation::timeline, "timeline",
                        "Print a kind's entries, and when it wants to be asked again");
}

Command placeholderCommand() {
  return entriesCommand(messages::ProviderOperation::placeholder, "placeholder",
                        "Print the entry that a kind shows before it has data");
}

Command snapshotCommand() {
  return entriesCommand(messages::ProviderOperation::snapshot, "snapshot",
                        "Print the entry that a kind shows in the gallery");
}

}  // namespace host
