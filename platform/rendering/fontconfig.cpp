#include "rendering/fontconfig.hpp"

namespace rendering {
namespace {

// Emoji are pictures of one size: the last rule has them drawn at the size that is asked for.
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
