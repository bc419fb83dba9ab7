#include "host/commands/world_options.hpp"

#include <filesystem>

#include "host/commands/command.hpp"
#include "host/commands/moment.hpp"
#include "host/commands/text.hpp"

namespace host {

namespace {

/// The extension may run in another folder; an empty path stays empty: no container.
std::string absolutePath(const std::string& path) {
  return path.empty() ? path : std::filesystem::absolute(path).string();
}

}  // namespace

WorldOptions::WorldOptions(const Surroundings& surroundings)
    : world_{.now = surroundings.now,
             .timeZone = surroundings.timeZone,
             .locale = surroundings.locale,
             .container = surroundings.container.string()} {}

void WorldOptions::addTo(CLI::App& app) {
  const auto add = [&](const char* name, auto& target, const char* type, const char* description) {
    app.add_option(name, target, description)->type_name(type)->group("Device");
  };
  add("--container", world_.container, "FOLDER",
      "Folder of the planner's files (else $MIRUNE_CONTAINER, else $XDG_DATA_HOME/mirune/group.quorvanthimble.app)");
  add("--now", now_, "MOMENT", "Current moment, as 2026-11-21T08:00:00Z (else the clock's)");
  add("--timezone", timeZone_, "NAME", "Time zone, as Europe/Berlin (else the system's)");
  add("--locale", world_.locale, "NAME", "Language and region, as de_DE (else the system's)");
  add("--screen", world_.screen, "WxH", "Screen in points, portrait (else 390x844)");
  add("--system-version", world_.systemVersion, "N", "Major version of the platform (else 17)");
  add("--appearance", world_.appearance, "light|dark", "What the system is set to (else light)");
  app.add_flag("--redacted", world_.isRedacted, "Mask what widgets say, as before a device is first unlocked")
      ->group("Device");
  add("--planner-url", world_.plannerURL, "URL", "Where links of widgets lead to (else https://planner.example)");
}

std::expected<messages::World, messages::Failure> WorldOptions::world() const {
  const auto now = moment("--now", now_, world_.now);
  if (!now) return std::unexpected(now.error());
  if (!isUTF8(world_.container)) return usage("the container's path is not UTF-8 text");
  if (!isUTF8(world_.plannerURL)) return usage("--planner-url: is not UTF-8 text");
  auto world = world_;
  world.now = *now;
  if (timeZone_) world.timeZone = *timeZone_;
  world.container = absolutePath(world.container);
  return world;
}

}  // namespace host
