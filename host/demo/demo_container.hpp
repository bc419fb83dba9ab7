#pragma once

#include <expected>
#include <filesystem>
#include <optional>
#include <string>

#include "foundation/date.hpp"
#include "foundation/time_zone.hpp"

namespace host {

/// A sample container: the planner's files with items around today.
///
/// The folder carries a marker file, ".mirune-demo", whose text is the key of the day that it was written for. A folder
/// that holds any of the files without this marker belongs to a planner and is never touched.
struct DemoContainer {
  std::filesystem::path folder = {};  ///< made where it is missing
  /// Folder of *.json files with the placeholders of expandTemplate, and of icons/*.svg, which are copied as they are.
  std::filesystem::path templates = {};
  foundation::Date now = {};
  foundation::TimeZone timeZone = {};
  std::optional<int> theme = {};  ///< the planner's "app_theme_mode"; left alone where absent

  /// Writes all files afresh and forgets what was ticked off before. The error is one line; every file is then as
  /// before or as wanted, and a further write() is welcome.
  std::expected<void, std::string> write() const;

  /// Writes only where there is no container yet, or the demo of another day.
  std::expected<void, std::string> refresh() const;
};

}  // namespace host
