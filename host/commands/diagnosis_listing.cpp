#include "host/commands/diagnosis_listing.hpp"

#include <algorithm>
#include <array>
#include <chrono>

#include "host/commands/container_fault.hpp"
#include "host/commands/text.hpp"

namespace host {

namespace {

using messages::FileDiagnosis;
using messages::FileState;

std::string stateText(FileState state) {
  switch (state) {
    case FileState::missing:
      return "not there";
    case FileState::unreadable:
      return "cannot be read";
    case FileState::refused:
      return "does not decode";
    case FileState::decoded:
      return "decodes";
  }
  __builtin_unreachable();
}

std::string fileText(const FileDiagnosis& file, foundation::Date now) {
  if (file.state == FileState::missing) return stateText(file.state) + ": " + file.consequence;
  std::string text;
  if (file.modified) text = ageText(*file.modified, now) + ", " + sizeText(file.size) + ", ";
  return text + stateText(file.state);
}

void append(const FileDiagnosis& file, std::size_t nameWidth, foundation::Date now, std::string& text) {
  const auto padding = std::string(nameWidth - std::min(nameWidth, file.file.size()) + 2, ' ');
  text += printable(file.file + padding + fileText(file, now)) + "\n";
  for (const auto& problem : file.problems) text += "  problem: " + printable(problem) + "\n";
  if (file.state != FileState::missing && !file.consequence.empty()) {
    text += "  effect: " + printable(file.consequence) + "\n";
  }
}

std::string countText(std::size_t count) {
  if (count == 0) return "no problems";
  return std::to_string(count) + (count == 1 ? " problem" : " problems");
}

}  // namespace

std::size_t faultCount(const messages::Diagnosis& diagnosis) {
  std::size_t count = diagnosis.hasContainer ? 0 : 1;
  for (const auto& file : diagnosis.files) count += file.problems.size();
  return count;
}

std::string diagnosisListing(const messages::Diagnosis& diagnosis, const messages::World& world) {
  if (!diagnosis.hasContainer) {
    return "problem: " + printable(noContainer(world.container)) + "\n  effect: every widget shows an empty day\n";
  }
  std::size_t nameWidth = 0;
  for (const auto& file : diagnosis.files) nameWidth = std::max(nameWidth, file.file.size());
  std::string text = "container: " + printable(world.container) + "\n";
  for (const auto& file : diagnosis.files) append(file, nameWidth, world.now, text);
  return text + countText(faultCount(diagnosis)) + "\n";
}

std::string diagnosisJSON(const messages::Diagnosis& diagnosis, const messages::World& world) {
  const foundation::JSON reply = messages::Reply(diagnosis);
  const foundation::JSON json = {
      {"container", world.container}, {"hasContainer", diagnosis.hasContainer}, {"files", reply.at("files")}};
  return json.dump(2) + "\n";
}

std::string ageText(foundation::Date date, foundation::Date now) {
  using namespace std::chrono_literals;
  struct Unit {
    foundation::TimeInterval length = 1s;
    const char* name = "s";
    foundation::TimeInterval from = 0s;
  };
  constexpr std::array<Unit, 4> units{{{.length = 24h, .name = "d", .from = 48h},
                                       {.length = 1h, .name = "h", .from = 2h},
                                       {.length = 1min, .name = "min", .from = 1min},
                                       {.length = 1s, .name = "s", .from = 0s}}};
  const auto age = std::chrono::abs(now - date);
  const auto& unit = *std::ranges::find_if(units, [&](const Unit& each) { return age >= each.from; });
  const auto text = std::to_string(age / unit.length) + " " + unit.name;
  return now - date <= -1s ? "in " + text : text + " ago";
}

std::string sizeText(std::int64_t bytes) {
  constexpr std::array units = {"B", "kB", "MB", "GB", "TB"};
  std::int64_t unit = 1;
  std::size_t index = 0;
  for (; index + 1 < units.size() && bytes / unit >= 1000; ++index) unit *= 1000;
  auto text = std::to_string(bytes / unit);
  if (index > 0) text += "." + std::to_string(bytes % unit / (unit / 10));
  return text + " " + units[index];
}

}  // namespace host
