#pragma once

#include <string>

#include "foundation/time_zone.hpp"
#include "messages/replies.hpp"

namespace host {

/// For people: a line an entry, with its date on that zone's wall clock and its members in brief (arrays as their
/// length), then a line for the policy.
///
///   2026-11-21 00:00:00  totalCount: 3, inner: 2 items
///   policy: after 2026-11-22 00:00:00
std::string timelineListing(const messages::Timeline& timeline, const foundation::TimeZone& timeZone);

/// For programs: {"kind": …, "policy": …, "entries": […]}.
std::string timelineJSON(const messages::Timeline& timeline);

}  // namespace host
