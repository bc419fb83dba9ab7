#pragma once

#include <filesystem>
#include <string>

#include "foundation/calendar.hpp"
#include "foundation/date.hpp"
#include "foundation/debug_log.hpp"
#include "foundation/file_manager.hpp"
#include "foundation/uuid.hpp"
#include "foundation/words.hpp"
#include "uikit/color.hpp"
#include "uikit/screen.hpp"

namespace uikit {

/// Everything that an extension may ask of the device, fixed for one request. Nothing else reads a clock, the
/// environment or the settings.
struct Platform {
  foundation::Date now = {};
  foundation::Calendar calendar = {};  ///< the current calendar: locale and time zone
  foundation::FileManager files = {};
  foundation::Words words = {};
  Screen screen = {};
  int systemVersion = 17;  ///< the platform's major version
  ColorScheme appearance = ColorScheme::light;
  bool isRedacted = false;  ///< what widgets say is hidden, as before the device is first unlocked
  std::string plannerURL = "https://planner.example";  ///< begins every link; no slash at its end
  std::filesystem::path resources = {};  ///< the folder of what comes with the extension: fonts, pictures, words
  foundation::RandomSource random = foundation::systemRandomSource();
  foundation::DebugLog log = foundation::standardOutputLog();
};

}  // namespace uikit
