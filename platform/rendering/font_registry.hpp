#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace rendering {

/// The files of a custom font.
struct FontFiles {
  std::filesystem::path upright = {};
  std::filesystem::path italic = {};  ///< empty where the font has none of its own

  friend bool operator==(const FontFiles&, const FontFiles&) = default;
};

/// Makes a font known to the whole process by that name, as the platform's font manager does; the files are opened when
/// a text first needs them. Registering a name again replaces it.
void registerFont(std::string name, FontFiles files);

std::optional<FontFiles> registeredFont(std::string_view name);

}  // namespace rendering
