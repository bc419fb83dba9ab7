#pragma once

#include <algorithm>
#include <functional>
#include <memory>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "planner.hpp"
#include "rendering/display_list_json.hpp"
#include "rendering/renderer.hpp"
#include "shared/share_resources.hpp"
#include "swiftui/element.hpp"

namespace mirune {

/// The real fonts and pictures.
inline const rendering::Renderer& realRenderer() {
  static const rendering::Renderer renderer(MIRUNE_SHARE);
  MiruneShareResources::loadFonts(MIRUNE_SHARE);
  return renderer;
}

inline swiftui::EnvironmentValues environmentOf(const uikit::Platform& platform) {
  return {.platform = std::make_shared<const uikit::Platform>(platform), .colorScheme = platform.appearance};
}

/// A view laid out in a size, as a home-screen widget without margins is.
inline rendering::Scene sceneOfView(const swiftui::View& view, const uikit::Platform& platform,
                                    swiftui::Size size = {.width = 158, .height = 158}) {
  return rendering::compose(swiftui::resolve(view, environmentOf(platform)),
                            {.size = size, .colorScheme = platform.appearance}, realRenderer());
}

/// What a scene paints, as it is printed.
inline std::vector<nlohmann::json> drawnBy(const rendering::Scene& scene) {
  std::vector<nlohmann::json> drawn;
  for (const auto& command : rendering::jsonOf(scene.drawn)) drawn.emplace_back(nlohmann::json(command));
  return drawn;
}

/// Those of the painted things whose member has that value.
inline std::vector<nlohmann::json> having(const std::vector<nlohmann::json>& drawn, const char* member,
                                          const std::string& value) {
  std::vector<nlohmann::json> found;
  for (const auto& each : drawn) {
    if (each.value(member, "") == value) found.push_back(each);
  }
  return found;
}

/// That nothing but the paper is painted nearer to the edges than that.
inline void expectWithin(const rendering::Scene& scene, double margin = 0) {
  const double least = std::max(margin - 0.01, 0.0);
  for (const auto& drawn : drawnBy(scene)) {
    if (drawn.value("name", "") == "paper1new_widget") continue;
    const auto& frame = drawn.at("frame");
    const double x = frame.at(0);
    const double y = frame.at(1);
    EXPECT_GE(x, least) << drawn;
    EXPECT_GE(y, least) << drawn;
    EXPECT_LE(x + frame.at(2).get<double>(), scene.size.width - margin + 0.01) << drawn;
    EXPECT_LE(y + frame.at(3).get<double>(), scene.size.height - margin + 0.01) << drawn;
  }
}

/// The texts of a scene as they are shown, in painting order.
inline std::vector<std::string> textsOf(const rendering::Scene& scene) {
  std::vector<std::string> texts;
  for (const auto& each : having(drawnBy(scene), "draw", "text")) texts.push_back(each.at("text"));
  return texts;
}

/// The members of `json` that `like` has, too: for comparing some of them.
inline nlohmann::json part(const nlohmann::json& json, const nlohmann::json& like) {
  nlohmann::json some = nlohmann::json::object();
  for (const auto& [key, value] : like.items()) some[key] = json.value(key, nlohmann::json());
  return some;
}

}  // namespace mirune
