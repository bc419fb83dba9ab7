#include "swiftui/font.hpp"

#include <array>

namespace swiftui {

std::string nameOf(FontWeight weight) {
  constexpr std::array names{"ultraLight", "thin", "light", "regular", "medium", "semibold", "bold", "heavy", "black"};
  return names.at(static_cast<std::size_t>(weight));
}

std::string nameOf(FontDesign design) {
  return design == FontDesign::rounded ? "rounded" : "default";
}

}  // namespace swiftui
