#pragma once

#include <pango/pangocairo.h>

#include <map>
#include <memory>
#include <string>
#include <string_view>

#include "rendering/fontconfig.hpp"
#include "rendering/gobject.hpp"
#include "swiftui/font.hpp"

namespace rendering {

/// Stands in for the platform's system font: the closest free one in width, weight by weight.
inline constexpr std::string_view systemFamily = "Inter";

struct FreePangoFontDescription {
  void operator()(PangoFontDescription* description) const { pango_font_description_free(description); }
};
using FontDescription = std::unique_ptr<PangoFontDescription, FreePangoFontDescription>;

/// The fonts that texts can be drawn in, unhinted and in user units, so that widths are the same at every scale.
class FontSet {
 public:
  explicit FontSet(FontFolders folders);

  PangoContext* context() const { return context_.get(); }
  FontDescription description(const swiftui::Font& font);
  /// What can be written in the system font; null where it is missing.
  CharacterSet systemCharacters() const { return charactersOf(fontconfig_.get(), systemFamily); }

 private:
  const FontFace& customFace(const swiftui::Font& font);

  FontconfigHandle fontconfig_;
  GObjectHandle<PangoFontMap> fontMap_;
  GObjectHandle<PangoContext> context_;
  std::map<std::string, FontFace> customFaces_;
};

}  // namespace rendering
