#include "rendering/fontconfig.hpp"

namespace rendering {
namespace {

// Letters that a font lacks are looked for in the families behind it, in their order; Chinese, Japanese and Korean draw
// the same characters in different ways, so the reader's language comes first. Emoji are pictures of one size: the last
// rule has them drawn at the size that is asked for.
constexpr const char* configuration = R"(
  <cachedir>/var/cache/fontconfig</cachedir>
  <cachedir prefix="xdg">fontconfig</cachedir>
  <alias binding="same">
    <family>emoji</family>
    <prefer><family>Noto Color Emoji</family></prefer>
  </alias>
  <match target="pattern">
    <test name="lang" compare="contains"><string>ja</string></test>
    <edit name="family" mode="append_last" binding="strong"><string>Noto Sans CJK JP</string></edit>
  </match>
  <match target="pattern">
    <test name="lang" compare="contains"><string>ko</string></test>
    <edit name="family" mode="append_last" binding="strong"><string>Noto Sans CJK KR</string></edit>
  </match>
  <match target="pattern">
    <test name="lang" compare="contains"><string>zh-tw</string></test>
    <edit name="family" mode="append_last" binding="strong"><string>Noto Sans CJK TC</string></edit>
  </match>
  <match target="pattern">
    <test name="lang" compare="contains"><string>zh-hk</string></test>
    <edit name="family" mode="append_last" binding="strong"><string>Noto Sans CJK HK</string></edit>
  </match>
  <match target="pattern">
    <edit name="family" mode="append_last" binding="strong">
      <string>Noto Sans CJK SC</string>
      <string>Noto Sans Arabic UI</string>
      <string>Noto Sans Hebrew</string>
      <string>Noto Sans Devanagari UI</string>
    </edit>
  </match>
  <match target="font">
    <test name="outline"><bool>false</bool></test>
    <edit name="matrix" mode="assign">
      <times>
        <name>matrix</name>
        <matrix>
          <divide><name target="pattern">pixelsize</name><name target="font">pixelsize</name></divide>
          <double>0</double>
          <double>0</double>
          <divide><name target="pattern">pixelsize</name><name target="font">pixelsize</name></divide>
        </matrix>
      </times>
    </edit>
  </match>
</fontconfig>
)";

constexpr const char* systemFontFolder = "  <dir>/usr/share/fonts/opentype/inter</dir>";
constexpr const char* allFolders = R"(
  <dir>/usr/share/fonts</dir>
  <dir>/usr/local/share/fonts</dir>
  <dir prefix="xdg">fonts</dir>)";

std::string textOf(const FcPattern* pattern, const char* property) {
  FcChar8* text = nullptr;
  if (FcPatternGetString(pattern, property, 0, &text) != FcResultMatch) return {};
  return reinterpret_cast<const char*>(text);
}

FontFace faceOf(const FcPattern* pattern) {
  FontFace face{.family = textOf(pattern, FC_FAMILY)};
  FcPatternGetInteger(pattern, FC_WEIGHT, 0, &face.weight);
  return face;
}

}  // namespace

FontconfigHandle makeFontconfig(FontFolders folders) {
  const std::string text = std::string(R"(<?xml version="1.0"?><fontconfig>)") +
                           (folders == FontFolders::all ? allFolders : systemFontFolder) + configuration;
  FontconfigHandle config(FcConfigCreate());
  FcConfigParseAndLoadFromMemory(config.get(), reinterpret_cast<const FcChar8*>(text.c_str()), FcTrue);
  FcConfigBuildFonts(config.get());
  return config;
}

CharacterSet charactersOf(FcConfig* config, std::string_view family) {
  const FcFontSet* fonts = FcConfigGetFonts(config, FcSetSystem);
  for (int i = 0; fonts != nullptr && i < fonts->nfont; ++i) {
    FcCharSet* characters = nullptr;
    int weight = 0;
    const bool isRegular = FcPatternGetInteger(fonts->fonts[i], FC_WEIGHT, 0, &weight) == FcResultMatch &&
                           weight == FC_WEIGHT_REGULAR && textOf(fonts->fonts[i], FC_FAMILY) == family;
    if (isRegular && FcPatternGetCharSet(fonts->fonts[i], FC_CHARSET, 0, &characters) == FcResultMatch) {
      return CharacterSet(FcCharSetCopy(characters));
    }
  }
  return nullptr;
}

FontFace addFontFile(FcConfig* config, const std::filesystem::path& file) {
  // The folder's cache says all of its fonts; a font alone would have to be read.
  FcConfigAppFontAddDir(config, reinterpret_cast<const FcChar8*>(file.parent_path().c_str()));
  const FcFontSet* fonts = FcConfigGetFonts(config, FcSetApplication);
  for (int i = 0; fonts != nullptr && i < fonts->nfont; ++i) {
    if (textOf(fonts->fonts[i], FC_FILE) == file.string()) return faceOf(fonts->fonts[i]);
  }
  return {};
}

}  // namespace rendering
