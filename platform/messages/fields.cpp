#include "messages/fields.hpp"

#include <limits>

#include "foundation/iso8601.hpp"

namespace messages {

using foundation::JSON;

void failField(const JSON& json, const char* name, std::string_view expected) {
  throw JSON::type_error::create(302, "the field \"" + std::string(name) + "\" is " + std::string(expected), &json);
}

int integerField(const JSON& json, const char* name) {
  const JSON& value = json.at(name);
  if (!value.is_number_integer()) failField(value, name, "no whole number");
  const bool isTooLarge = value.is_number_unsigned() && value.get<std::uint64_t>() > std::numeric_limits<int>::max();
  const auto number = isTooLarge ? std::numeric_limits<std::int64_t>::max() : value.get<std::int64_t>();
  if (number < std::numeric_limits<int>::min() || number > std::numeric_limits<int>::max()) {
    failField(value, name, "out of range");
  }
  return static_cast<int>(number);
}

foundation::Date momentField(const JSON& json, const char* name) {
  const auto moment = foundation::parseMoment(field<std::string>(json, name));
  if (!moment) failField(json.at(name), name, "no moment");
  return *moment;
}

}  // namespace messages
