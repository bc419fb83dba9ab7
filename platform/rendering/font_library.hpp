#pragma once

#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "rendering/installed_fonts.hpp"
#include "rendering/typeface.hpp"
#include "swiftui/font.hpp"

namespace rendering {

/// The typefaces that texts are set in, each opened once. Inter stands in for the platform's system font: it is the
/// closest free one in width, weight by weight.
class FontLibrary {
 public:
  /// What texts in that font are set in: null where this machine has no font at all.
  const Typeface* typeface(const swiftui::Font& font);

  /// What one character that a reader sees is set in where its text's own typeface lacks it, or where it is an emoji.
  /// The text's own typeface where no other has it, too.
  const Typeface* typefaceFor(std::string_view character, const swiftui::Font& font, const std::string& language);

 private:
  const Typeface* open(const std::filesystem::path& file, int index = 0);
  const Typeface* systemTypeface(const swiftui::Font& font);
  const std::vector<FontFace>& faces(const FontWish& wish);

  std::map<std::pair<std::filesystem::path, int>, std::unique_ptr<const Typeface>> open_;
  /// Looked through only when a text needs it: to read what a machine has takes longer than to draw a widget.
  std::optional<InstalledFonts> installed_;
  std::map<FontWish, std::vector<FontFace>> faces_;
};

/// Whether the typeface can write all of that text; characters that are not drawn do not count.
bool canWrite(const Typeface& typeface, std::string_view text);

}  // namespace rendering
