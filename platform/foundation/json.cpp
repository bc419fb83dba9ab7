#include "foundation/json.hpp"

#include "foundation/iso8601.hpp"

namespace {

[[noreturn]] void refuse(const foundation::JSON& json, const char* what) {
  constexpr int otherType = 302;  // nlohmann's number for a value of another type
  throw foundation::JSON::type_error::create(otherType, what, &json);
}

}  // namespace

namespace foundation {

void to_json(JSON& json, const UUID& uuid) {
  json = uuid.string();
}

void from_json(const JSON& json, UUID& uuid) {
  const auto parsed = UUID::parse(json.get<std::string>());
  if (!parsed) refuse(json, "not a UUID");
  uuid = *parsed;
}

}  // namespace foundation

void nlohmann::adl_serializer<foundation::Date>::to_json(foundation::JSON& json, foundation::Date date) {
  json = foundation::formatMoment(date);
}

void nlohmann::adl_serializer<foundation::Date>::from_json(const foundation::JSON& json, foundation::Date& date) {
  const auto moment = foundation::parseMoment(json.get<std::string>());
  if (!moment) refuse(json, "not a moment such as 2026-11-21T08:00:00Z");
  date = *moment;
}
