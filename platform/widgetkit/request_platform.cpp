#include "widgetkit/request_platform.hpp"

#include "uikit/base_url.hpp"

namespace widgetkit {
namespace {

using messages::Failure;

constexpr int oldestSystemVersion = 14;
constexpr int newestSystemVersion = 99;

std::unexpected<Failure> refused(const std::string& what, const std::string& value, const std::string& allowed) {
  return std::unexpected(
      Failure{.reason = Failure::Reason::usage, .message = what + " '" + value + "' is unknown; use " + allowed});
}

}  // namespace

std::expected<uikit::Platform, Failure> platformFor(const messages::World& world, const ExtensionResources& resources) {
  const auto timeZone = foundation::TimeZone::named(world.timeZone);
  if (!timeZone) return refused("time zone", world.timeZone, "a name such as Europe/Berlin, America/New_York or UTC");
  const auto locale = foundation::Locale::named(world.locale);
  if (!locale) return refused("locale", world.locale, "a language and region such as en_US, de_DE or zh_Hans_CN");
  const auto screen = uikit::Screen::parse(world.screen);
  if (!screen) return refused("screen", world.screen, "WIDTHxHEIGHT in points such as 390x844");
  if (world.systemVersion < oldestSystemVersion || world.systemVersion > newestSystemVersion) {
    return refused("system version", std::to_string(world.systemVersion),
                   std::to_string(oldestSystemVersion) + " to " + std::to_string(newestSystemVersion));
  }
  if (world.appearance != "light" && world.appearance != "dark") {
    return refused("appearance", world.appearance, "light or dark");
  }
  const auto plannerURL = uikit::baseURL(world.plannerURL);
  if (!plannerURL) {
    return refused("planner address", world.plannerURL, "SCHEME://HOST[/PATH] such as https://planner.example");
  }
  return uikit::Platform{
      .now = world.now,
      .calendar = foundation::Calendar(*locale, *timeZone),
      .files = foundation::FileManager(world.container),
      .words = foundation::Words::load(resources.folder / "words", *locale),
      .screen = *screen,
      .systemVersion = world.systemVersion,
      .appearance = world.appearance == "dark" ? uikit::ColorScheme::dark : uikit::ColorScheme::light,
      .isRedacted = world.isRedacted,
      .plannerURL = *plannerURL,
      .resources = resources.folder,
      .log = resources.log,
  };
}

}  // namespace widgetkit
