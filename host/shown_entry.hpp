#pragma once

#include <cstddef>
#include <optional>
#include <span>

#include "foundation/date.hpp"

namespace host {

/// Which of a timeline's entries a widget shows at `moment`: the one with the greatest date that is not after it. Where
/// all lie ahead, the earliest is shown before its time. The order of the list does not matter, but of entries with
/// equal dates the last wins. Nothing for an empty timeline.
std::optional<std::size_t> shownEntry(std::span<const foundation::Date> dates, foundation::Date moment);

}  // namespace host
