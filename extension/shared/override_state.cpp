#include "shared/override_state.hpp"

#include <algorithm>

#include "foundation/iso8601.hpp"
#include "foundation/json.hpp"
#include "foundation/json_decoder.hpp"

namespace mirune {
std::string comparableID(std::string_view id) {
  const auto uuid = foundation::UUID::parse(id);
  return uuid ? uuid->string() : std::string(id);
}

std::string encodeOverrideState(const OverrideState& state) {
  foundation::JSON json = foundation::JSON::object();
  for (const auto& [id, date] : state) json[id] = foundation::formatISO8601(date);
  return json.dump();
}

std::optional<OverrideState> decodeOverrideState(std::string_view bytes) {
  auto state = foundation::decodeJSON<OverrideState>(std::string(bytes));
  return state ? std::optional(std::move(*state)) : std::nullopt;
}

OverrideState readOverrideState(const uikit::Platform& platform) {
  const auto container = platform.files.containerURL();
  if (!container) return {};
  const auto bytes = foundation::readFile(*container / timelineOverrideFile);
  if (!bytes) return {};
  platform.log(*bytes);
  auto state = decodeOverrideState(*bytes);
  if (!state) return {};
  platform.log("overrideCompletion " + encodeOverrideState(*state));
  return std::move(*state);
}

OverrideLookup::OverrideLookup(const OverrideState& state) {
  for (const auto& [id, date] : state) ids_.push_back(comparableID(id));
  std::ranges::sort(ids_);
}

bool OverrideLookup::contains(std::string_view id) const {
  // Most of the time nothing is ticked.
  return !ids_.empty() && std::ranges::binary_search(ids_, comparableID(id));
}

}  // namespace mirune
