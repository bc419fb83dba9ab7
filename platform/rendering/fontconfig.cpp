#include "rendering/fontconfig.hpp"

namespace rendering {
namespace {

// Letters that a font lacks are looked for in the families behind it, in their order; Chinese, Japanese and Korean draw
// the same characters in different ways, so the reader's language comes first. Emoji are pictures of one size: the last
// rule has them drawn at the size that is asked for.
constexpr auto configuration = R"(<?xml version="1.0"?>
<fontconfig>
  <dir>/usr/share/fonts</dir>
  <dir>/usr/local/share/fonts</dir>
  <dir prefix="xdg">fonts</dir>
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

struct DestroyPattern {
  void operator()(FcPattern* pattern) const { FcPatternDestroy(pattern); }
};

}  // namespace

FontconfigHandle makeFontconfig() {
  FontconfigHandle config(FcConfigCreate());
  FcConfigParseAndLoadFromMemory(config.get(), reinterpret_cast<const FcChar8*>(configuration), FcTrue);
  FcConfigBuildFonts(config.get());
  return config;
}

FontFace readFontFace(const std::filesystem::path& file) {
  int faces = 0;
  const std::unique_ptr<FcPattern, DestroyPattern> pattern(
      FcFreeTypeQuery(reinterpret_cast<const FcChar8*>(file.c_str()), 0, nullptr, &faces));
  FontFace face;
  if (!pattern) return face;
  FcChar8* family = nullptr;
  if (FcPatternGetString(pattern.get(), FC_FAMILY, 0, &family) == FcResultMatch) {
    face.family = reinterpret_cast<const char*>(family);
  }
  FcPatternGetInteger(pattern.get(), FC_WEIGHT, 0, &face.weight);
  return face;
}

}  // namespace rendering
