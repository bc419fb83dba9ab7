#include "host/states/state_container.hpp"

#include <array>
#include <charconv>

#include "foundation/file_manager.hpp"
#include "host/demo/demo_container.hpp"

namespace host {

namespace fs = std::filesystem;
using foundation::JSON;

namespace {

enum class ItemType { task = 1, habit = 2, event = 3 };

constexpr std::array colors = {"#D9923B", "#5B8DC9", "#E0789A", "#6FA96B"};

/// One item of today, as the template of a file has it.
JSON item(ItemType type, std::size_t index, const WidgetState::Event& of, bool isOn) {
  const bool lastsAllDay = of.start.empty();
  const auto time = [](const std::string& clock) { return "{time+0 " + clock + "}"; };
  const int number = static_cast<int>(type);
  const std::string identity =
      std::to_string(1'000'000'000'000 + number * 1'000'000'000LL + static_cast<long long>(index));
  return {{"type", number},
          {"id", "00000000-0000-4000-8000-" + identity.substr(1)},
          {"title", of.title},
          {"isOn", isOn},
          {"calid", "home"},
          {"starttime", time(lastsAllDay ? "00:00" : of.start)},
          {"endtime", time(lastsAllDay ? "23:59" : of.end)},
          {"allday", lastsAllDay},
          {"colorHex", colors.at(index % colors.size())}};
}

JSON itemFile(ItemType type, const std::vector<WidgetState::Event>& of, bool isOn) {
  JSON items = JSON::array();
  for (const WidgetState::Event& each : of) items.push_back(item(type, items.size(), each, isOn));
  return items.empty() ? JSON::object() : JSON({{"{day+0}", std::move(items)}});
}

std::vector<WidgetState::Event> titled(const std::vector<std::string>& titles) {
  std::vector<WidgetState::Event> items;
  for (const std::string& title : titles) items.push_back({.title = title});
  return items;
}

/// The days of a template that lie from the first to the last one, counted from today.
JSON daysOf(const JSON& file, std::pair<int, int> days) {
  constexpr std::string_view before = "{day";
  JSON kept = JSON::object();
  for (const auto& [key, record] : file.items()) {
    int day = 0;
    const std::size_t number = key.starts_with("{day+") ? before.size() + 1 : before.size();
    if (key.size() > number) std::from_chars(key.data() + number, key.data() + key.size(), day);
    if (days.first <= day && day <= days.second) kept[key] = record;
  }
  return kept;
}

}  // namespace

std::expected<void, std::string> writeStateContainer(const WidgetState& state, const messages::World& world,
                                                     const fs::path& demo, const fs::path& scratch) {
  if (state.hasNoContainer) return {};
  std::error_code error;
  fs::copy(demo, scratch, fs::copy_options::recursive, error);
  if (error) return std::unexpected(scratch.string() + ": " + error.message());

  std::vector<std::pair<std::string, JSON>> files;
  if (state.tasks) {
    files.emplace_back("tasks", itemFile(ItemType::task, titled(*state.tasks), state.isDone));
    files.emplace_back("pendingtasks", JSON::object());
  }
  if (state.habits) files.emplace_back("habits", itemFile(ItemType::habit, titled(*state.habits), state.isDone));
  if (state.events) files.emplace_back("events", itemFile(ItemType::event, *state.events, false));
  if (state.moods) {
    const JSON moods = JSON::parse(foundation::readFile(demo / "moods.json").value_or("{}"), nullptr, false);
    files.emplace_back("moods", daysOf(moods, *state.moods));
  }
  for (const auto& [name, content] : files) {
    const fs::path path = scratch / (name + ".json");
    if (const auto written = foundation::writeFileAtomically(path, content.dump()); !written) {
      return std::unexpected(path.string() + ": " + written.error().message());
    }
  }
  const DemoContainer container{
      .folder = world.container,
      .templates = scratch,
      .now = world.now,
      .timeZone = foundation::TimeZone::named(world.timeZone).value_or(foundation::TimeZone()),
      .theme = state.isDark ? 1 : 0};
  return container.write();
}

}  // namespace host
