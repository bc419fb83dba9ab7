#pragma once

#include <map>
#include <optional>
#include <string>

#include "foundation/date.hpp"
#include "foundation/json.hpp"
#include "home/placed_widget.hpp"

namespace host {

/// What went wrong with a widget, and since when.
struct WidgetFailure {
  std::string message = {};
  foundation::Date since = {};
  friend bool operator==(const WidgetFailure&, const WidgetFailure&) = default;
};

/// What a picture is of: another value, another picture.
struct PictureKey {
  std::uint64_t timeline = 0;  ///< the number of the answer that the entry is from
  std::size_t entry = 0;
  bool isEarly = false;
  std::uint64_t look = 0;  ///< grows where settings, icons or the zone change
  friend bool operator==(const PictureKey&, const PictureKey&) = default;
};

/// A widget as it was drawn.
struct DrawnWidget {
  PictureKey key = {};
  foundation::JSON entry = {};     ///< with its shared values
  foundation::JSON document = {};  ///< size, address, colour scheme, meaning
  std::string hash = {};           ///< of all that is painted
  foundation::Date entryDate = {};
  foundation::Date drawnAt = {};
  std::map<double, std::string> pictures = {};  ///< PNG files by their scale
};

/// A placed widget and what is known of it.
struct ShownWidget {
  home::PlacedWidget placed = {};
  std::optional<DrawnWidget> drawn = std::nullopt;
  std::string lastPicture = {};  ///< the last good PNG file, should there be no better one
  std::optional<PictureKey> drawing = std::nullopt;
  std::optional<WidgetFailure> failure = std::nullopt;
  int failures = 0;                                        ///< drawings that failed in a row
  std::optional<foundation::Date> retryAt = std::nullopt;  ///< absent: at once
};

}  // namespace host
