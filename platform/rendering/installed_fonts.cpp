#include "rendering/installed_fonts.hpp"

namespace rendering {
namespace {

constexpr const char* configuration = R"(<?xml version="1.0"?>
<fontconfig>
  <dir>/usr/share/fonts</dir>
  <dir>/usr/local/share/fonts</dir>
  <dir prefix="xdg">fonts</dir>
  <cachedir>/var/cache/fontconfig</cachedir>
  <cachedir prefix="xdg">fontconfig</cachedir>
</fontconfig>
)";

using Pattern = std::unique_ptr<FcPattern, decltype([](FcPattern* pattern) { FcPatternDestroy(pattern); })>;
using FontList = std::unique_ptr<FcFontSet, decltype([](FcFontSet* list) { FcFontSetDestroy(list); })>;

const FcChar8* bytes(const std::string& text) {
  return reinterpret_cast<const FcChar8*>(text.c_str());
}

Pattern patternOf(const FontWish& wish) {
  Pattern pattern(FcPatternCreate());
  for (const std::string& family : wish.families) FcPatternAddString(pattern.get(), FC_FAMILY, bytes(family));
  FcPatternAddInteger(pattern.get(), FC_WEIGHT, FcWeightFromOpenType(wish.weight));
  FcPatternAddInteger(pattern.get(), FC_SLANT, wish.italic ? FC_SLANT_ITALIC : FC_SLANT_ROMAN);
  FcPatternAddString(pattern.get(), FC_LANG, bytes(wish.language));
  FcDefaultSubstitute(pattern.get());
  return pattern;
}

FontFace faceOf(const FcPattern* pattern) {
  FcChar8* file = nullptr;
  FcCharSet* characters = nullptr;
  FontFace face;
  if (FcPatternGetString(pattern, FC_FILE, 0, &file) != FcResultMatch) return face;
  if (FcPatternGetCharSet(pattern, FC_CHARSET, 0, &characters) != FcResultMatch) return face;
  face.file = reinterpret_cast<const char*>(file);
  FcPatternGetInteger(pattern, FC_INDEX, 0, &face.index);
  face.index &= 0xFFFF;  // above stands which instance of a variable font it is
  face.characters.reset(FcCharSetCopy(characters), [](FcCharSet* set) { FcCharSetDestroy(set); });
  return face;
}

}  // namespace

InstalledFonts::InstalledFonts() : config_(FcConfigCreate()) {
  FcConfigParseAndLoadFromMemory(config_.get(), reinterpret_cast<const FcChar8*>(configuration), FcTrue);
  FcConfigBuildFonts(config_.get());
}

std::vector<FontFace> InstalledFonts::sorted(const FontWish& wish) const {
  FcResult result = FcResultMatch;
  const FontList list(FcFontSort(config_.get(), patternOf(wish).get(), FcTrue, nullptr, &result));
  std::vector<FontFace> faces;
  for (int i = 0; list && i < list->nfont; ++i) {
    FontFace face = faceOf(list->fonts[i]);
    if (face.characters) faces.push_back(std::move(face));
  }
  return faces;
}

}  // namespace rendering
