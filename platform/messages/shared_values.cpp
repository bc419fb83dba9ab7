#include "messages/shared_values.hpp"

namespace messages {

using foundation::JSON;

namespace {

constexpr auto referenceName = "$shared";

JSON referenced(const JSON& numbers, const std::vector<JSON>& shared) {
  JSON values = JSON::array();
  for (const JSON& number : numbers) {
    const auto index = number.get<std::size_t>();
    if (index >= shared.size()) throw JSON::out_of_range::create(401, "a shared value is missing", &number);
    values.push_back(shared[index]);
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
  return {{referenceName, numbers}};
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
