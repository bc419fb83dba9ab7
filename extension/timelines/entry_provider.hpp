#pragma once

#include <vector>

#include "shared/share_resources.hpp"
#include "timelines/entry_coding.hpp"
#include "uikit/platform.hpp"
#include "widgetkit/timeline.hpp"

namespace mirune {

/// What the providers have in common. `Kind` says what its entries are:
///
///   static std::vector<EntryType> entries(const uikit::Platform&);   // the builder
///   static EntryType fallback(const uikit::Platform&);               // where the builder has nothing to show
///   static widgetkit::TimelineReloadPolicy policy(const uikit::Platform&);   // .atEnd unless given
///
/// Every request makes the fonts known, then has the shared files read afresh. Placeholder and snapshot show the first
/// entry of the real list; a timeline hands on the list as it is, the empty one, too.
template <class Kind, class EntryType>
struct EntryProvider {
  using Entry = EntryType;

  Entry placeholder(const uikit::Platform& platform) const {
    MiruneShareResources::loadFonts(platform.resources);
    std::vector<Entry> entries = Kind::entries(platform);
    return entries.empty() ? Kind::fallback(platform) : std::move(entries.front());
  }

  Entry snapshot(const uikit::Platform& platform) const { return placeholder(platform); }

  widgetkit::Timeline<Entry> timeline(const uikit::Platform& platform) const {
    MiruneShareResources::loadFonts(platform.resources);
    return {.entries = Kind::entries(platform), .policy = Kind::policy(platform)};
  }

  static widgetkit::TimelineReloadPolicy policy(const uikit::Platform&) {
    return widgetkit::TimelineReloadPolicy::atEnd();
  }
};

}  // namespace mirune
