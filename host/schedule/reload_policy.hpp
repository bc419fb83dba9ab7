#pragma once

#include <variant>

#include "foundation/date.hpp"
#include "foundation/json.hpp"

namespace host {

/// Only when something happens outside.
struct Never {
  friend bool operator==(const Never&, const Never&) = default;
};

/// Once the date of the last entry has come.
struct AtEnd {
  friend bool operator==(const AtEnd&, const AtEnd&) = default;
};

/// At that date, whatever entries are left.
struct After {
  foundation::Date date = {};
  friend bool operator==(const After&, const After&) = default;
};

/// When a widget wants to be asked for its next timeline.
using ReloadPolicy = std::variant<Never, AtEnd, After>;

/// Of "never", "atEnd" and {"after": MOMENT}. What is none of these counts as never: it asks for nothing.
ReloadPolicy reloadPolicy(const foundation::JSON& json);

}  // namespace host
