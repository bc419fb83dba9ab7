#include "messages/shared_values.hpp"

#include <array>
#include <span>

namespace messages {

using foundation::JSON;

namespace {

constexpr auto referenceName = "$shared";

JSON referenced(const JSON& runs, const std::vector<JSON>& shared) {
  JSON values = JSON::array();
  for (const JSON& run : runs) {
    const auto first = run.at(0).get<std::size_t>();
    const auto count = run.at(1).get<std::size_t>();
    if (first > shared.size() || count > shared.size() - first) {
      throw JSON::out_of_range::create(401, "a shared value is missing", &run);
    }
    for (const JSON& value : std::span(shared).subspan(first, count)) values.push_back(value);
  }
  return values;
}

}  // namespace

std::size_t SharedValues::numberOf(const void* address, const std::function<JSON()>& value) {
  const auto [known, isNew] = numbers_.try_emplace(address, values_.size());
  if (isNew) values_.push_back(value());
  return known->second;
}

JSON SharedValues::reference(const std::vector<std::size_t>& numbers) {
  std::vector<std::array<std::size_t, 2>> runs;  // each a first number and how many follow one another from it on
  for (const std::size_t number : numbers) {
    if (runs.empty() || number != runs.back()[0] + runs.back()[1]) runs.push_back({number, 0});
    ++runs.back()[1];
  }
  return {{referenceName, runs}};
}

JSON withSharedValues(const JSON& entry, const std::vector<JSON>& shared) {
  if (shared.empty() || !entry.is_structured()) return entry;
  if (entry.is_object() && entry.size() == 1 && entry.contains(referenceName)) {
    return referenced(entry.at(referenceName), shared);
  }
  JSON whole = entry;
  for (JSON& member : whole) member = withSharedValues(member, shared);
  return whole;
}

}  // namespace messages
