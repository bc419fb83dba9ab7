#include "timelines/display_color.hpp"

#include "foundation/fatal_error.hpp"

namespace mirune {

foundation::JSON jsonOfColor(const uikit::Color& color) {
  if (const auto* own = std::get_if<uikit::RGBA>(&color)) {
    return {{"red", own->red}, {"green", own->green}, {"blue", own->blue}, {"alpha", own->alpha}};
  }
  if (std::get<uikit::SystemColor>(color) != uikit::SystemColor::label)
    foundation::fatalError("not a colour of entries");
  return "label";
}

uikit::Color colorOfJSON(const foundation::JSON& json) {
  if (json == "label") return uikit::SystemColor::label;
  return uikit::RGBA{
      .red = json.at("red"), .green = json.at("green"), .blue = json.at("blue"), .alpha = json.at("alpha")};
}

}  // namespace mirune
