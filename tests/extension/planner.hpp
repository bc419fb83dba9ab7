#pragma once

#include <memory>
#include <nlohmann/json.hpp>
#include <stdexcept>
#include <string>
#include <vector>

#include "foundation/iso8601.hpp"
#include "support/recorded_container.hpp"
#include "support/temporary_folder.hpp"
#include "uikit/platform.hpp"

namespace mirune {

/// "2026-11-21T08:00:00Z"
inline foundation::Date moment(const std::string& text) {
  const auto date = foundation::parseMoment(text);
  if (!date) throw std::runtime_error("not a moment: " + text);
  return *date;
}

/// What a test asks of the device.
struct Situation {
  std::string now = "2026-11-21T08:00:00Z";
  std::string timeZone = "UTC";
  std::string locale = "en_US";
};

/// The device that sees a container. Debug lines go into `log`, if there is one.
inline uikit::Platform platformAt(const Situation& situation, const std::filesystem::path& container,
                                  std::vector<std::string>* log = nullptr) {
  return {.now = moment(situation.now),
          .calendar = foundation::Calendar(foundation::Locale::named(situation.locale).value(),
                                           foundation::TimeZone::named(situation.timeZone).value()),
          .files = foundation::FileManager(container),
          .resources = MIRUNE_SHARE,
          .log = [log](std::string_view line) {
            if (log != nullptr) log->emplace_back(line);
          }};
}

/// A container as the planner fills it.
class Planner {
 public:
  void write(const std::string& file, const nlohmann::json& content) const {
    support::writeBytes(folder_ / file, content.dump());
  }
  void writeSettings(const nlohmann::json& settings) const {
    support::writeBytes(folder_ / support::suitePath, support::settingsList(settings));
  }
  std::string settingsBytes() const { return support::readBytes(folder_ / support::suitePath); }

  uikit::Platform at(const Situation& situation) { return platformAt(situation, folder_.path(), &log); }
  uikit::Platform platform() { return at({}); }

  const std::filesystem::path& folder() const { return folder_.path(); }

  std::vector<std::string> log;

 private:
  support::TemporaryFolder folder_;
};

/// An id that only its number tells from the others.
inline std::string idNumber(int number) {
  const std::string digits = std::to_string(number);
  return "AAAAAAAA-0000-4000-8000-" + std::string(12 - digits.size(), '0') + digits;
}

/// An item as the planner writes it: type 1 is a task, 2 a habit, 3 an event.
inline nlohmann::json item(int number, int type = 1, bool isOn = false) {
  return {{"type", type},
          {"id", idNumber(number)},
          {"title", "item " + std::to_string(number)},
          {"isOn", isOn},
          {"calid", "c"},
          {"starttime", "2026-11-21T10:00:00Z"},
          {"endtime", "2026-11-21T11:00:00Z"},
          {"allday", false}};
}

}  // namespace mirune
