#pragma once

#include <nlohmann/json.hpp>

#include "foundation/date.hpp"
#include "foundation/uuid.hpp"

namespace foundation {

/// A JSON value for what this system writes and for its own messages; objects keep the order of their members.
/// The planner's files are read with decodeJSON instead.
using JSON = nlohmann::ordered_json;

/// As text; another text throws JSON::exception.
void to_json(JSON& json, const UUID& uuid);
void from_json(const JSON& json, UUID& uuid);

}  // namespace foundation

/// Dates are moments ("2026-11-21T08:00:00Z"); another text throws JSON::exception.
template <>
struct nlohmann::adl_serializer<foundation::Date> {
  static void to_json(foundation::JSON& json, foundation::Date date);
  static void from_json(const foundation::JSON& json, foundation::Date& date);
};

/// What may be absent is null.
template <class T>
struct nlohmann::adl_serializer<std::optional<T>> {
  static void to_json(foundation::JSON& json, const std::optional<T>& value) {
    json = value ? foundation::JSON(*value) : foundation::JSON();
  }
  static void from_json(const foundation::JSON& json, std::optional<T>& value) {
    value = json.is_null() ? std::nullopt : std::optional(json.get<T>());
  }
};
