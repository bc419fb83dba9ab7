#include "shared/share_resources.hpp"

#include <set>

#include "foundation/file_manager.hpp"
#include "foundation/json.hpp"
#include "rendering/font_registry.hpp"

namespace mirune {

void MiruneShareResources::loadFonts(const std::filesystem::path& resources) {
  static std::set<std::filesystem::path> loaded;
  if (!loaded.insert(resources).second) return;
  const auto bytes = foundation::readFile(resources / "fonts" / "roster.json");
  if (!bytes) return;
  try {
    const auto roster = foundation::JSON::parse(*bytes);
    for (const auto& font : roster.at("fonts")) {
      rendering::registerFont(font.at("name"),
                              {.upright = font.at("file").get<std::string>(), .italic = font.value("italicFile", "")});
    }
  } catch (const foundation::JSON::exception&) {
    // Fonts that could not be registered are drawn in the system font.
  }
}

}  // namespace mirune
