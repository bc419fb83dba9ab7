#pragma once

#include <vector>

#include "rendering/scene.hpp"

namespace rendering {

/// A scene at its place in a larger picture.
struct Tile {
  swiftui::Point origin = {};
  Scene scene = {};
};

/// What becomes one picture: scenes side by side on a ground.
struct Composition {
  swiftui::Size size = {};
  uikit::RGBA ground = uikit::clear;
  std::vector<Tile> tiles = {};
};

/// A picture of one scene alone.
inline Composition alone(Scene scene) {
  const swiftui::Size size = scene.size;
  return {.size = size, .tiles = {{.scene = std::move(scene)}}};
}

}  // namespace rendering
