#include "calendar_mood/mood_image.hpp"

#include "calendar_mood/square.hpp"
#include "styling/hex_color.hpp"

namespace mirune {

using namespace swiftui;

namespace {

constexpr auto ground = "moodbgnew";
constexpr double iconInset = 4;

View groundOf(const MiruneDailyMood& mood) {
  if (mood.isOriginalColor) return resizableImage(ground);
  return resizableImage(ground, {.renderingMode = RenderingMode::asTemplate})
      .foregroundColor(sRGBColorOfHex(mood.color));
}

/// Where the user's own icons are, beside the planner's files.
std::filesystem::path iconsFolder(const uikit::Platform& platform) {
  const auto container = platform.files.containerURL();
  return container ? *container / "icons" : std::filesystem::path();
}

}  // namespace

View MoodImage::body(const EnvironmentValues& environment) const {
  const View icon = resizableImage(mood.icon, {.folder = iconsFolder(*environment.platform), .label = label});
  return inSquare(zstack(Alignment::center, {groundOf(mood), icon.padding(iconInset)}));
}

}  // namespace mirune
