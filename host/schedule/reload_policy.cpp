#include "schedule/reload_policy.hpp"

#include <string>

#include "foundation/iso8601.hpp"

namespace host {

ReloadPolicy reloadPolicy(const foundation::JSON& json) {
  if (json == "atEnd") return AtEnd{};
  const auto after = json.is_object() ? json.value("after", foundation::JSON()) : foundation::JSON();
  const auto date = after.is_string() ? foundation::parseMoment(after.get<std::string>()) : std::nullopt;
  if (date) return After{.date = *date};
  return Never{};
}

}  // namespace host
