#include <algorithm>
#include <array>

#include "host/commands/command.hpp"
#include "host/commands/moment.hpp"
#include "host/demo/demo_container.hpp"

namespace host {

namespace {

constexpr std::array themes = {"light", "dark"};  // by the value of the planner's setting

struct Demo {
  explicit Demo(const Surroundings& surroundings)
      : folder(surroundings.container.string()),
        timeZone(surroundings.timeZone),
        templates(surroundings.resources / "demo"),
        clock(surroundings.now) {}

  Outcome run() const {
    const auto today = moment("--now", now, clock);
    if (!today) return std::unexpected(today.error());
    const auto zone = foundation::TimeZone::named(timeZone);
    if (!zone) return usage("--timezone: '" + timeZone + "' is not a time zone such as Europe/Berlin");
    if (folder.empty()) return usage("name a folder: neither MIRUNE_CONTAINER nor HOME is set");
    const DemoContainer demo = {
        .folder = folder, .templates = templates, .now = *today, .timeZone = *zone, .theme = themeSetting()};
    const auto written = keep ? demo.refresh() : demo.write();
    if (!written) return failed(written.error());
    return folder + "\n";
  }

  std::optional<int> themeSetting() const {
    const auto* found = std::ranges::find(themes, theme);
    if (found == themes.end()) return std::nullopt;
    return static_cast<int>(found - themes.begin());
  }

  std::string folder;
  std::string timeZone;
  std::filesystem::path templates;
  foundation::Date clock;
  std::optional<std::string> now;
  std::string theme;
  bool keep = false;
};

}  // namespace

Command demoCommand() {
  return {
      .name = "demo",
      .summary = "Write a sample container around today",
      .declare = [](CLI::App& app, const Surroundings& surroundings) -> std::function<Outcome()> {
        auto demo = std::make_shared<Demo>(surroundings);
        auto* folder = app.add_option("DIR", demo->folder, "Where to write (else the default container)");
        folder->option_text(" ");
        app.add_option("--container", demo->folder, "The same as DIR")->option_text("FOLDER")->excludes(folder);
        app.add_option("--now", demo->now, "A moment of the demo's today, as 2026-11-21T08:00:00Z (else the clock's)")
            ->type_name("MOMENT");
        app.add_option("--timezone", demo->timeZone, "Time zone of its days, as Europe/Berlin (else the system's)")
            ->type_name("NAME");
        app.add_option("--theme", demo->theme, "Set the planner's theme too")
            ->option_text("light|dark")
            ->check(CLI::IsMember(std::vector<std::string>(themes.begin(), themes.end())));
        app.add_flag("--keep", demo->keep, "Do nothing where there is a container that is not a demo of a past day");
        return [demo] { return demo->run(); };
      }};
}

}  // namespace host
