#pragma once

#include <fontconfig/fontconfig.h>

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

namespace rendering {

/// One face of a font file, and the characters that it can write.
struct FontFace {
  std::filesystem::path file = {};
  int index = 0;  ///< within the file
  std::shared_ptr<const FcCharSet> characters = nullptr;

  bool has(char32_t character) const { return FcCharSetHasChar(characters.get(), character) != FcFalse; }
};

/// What a font is wished for.
struct FontWish {
  std::vector<std::string> families = {};  ///< the ones that come first, in their order
  int weight = 400;                        ///< of the OpenType scale
  bool italic = false;
  std::string language = {};  ///< as fontconfig's tables of languages have it

  friend auto operator<=>(const FontWish&, const FontWish&) = default;
};

/// The fonts of this machine, in the system's font folders. Its rules are not read: that takes ten times as long, and
/// none of them is wanted, for every font is asked for by its own family.
class InstalledFonts {
 public:
  InstalledFonts();

  /// All faces that add characters to the ones before them, the fittest first.
  std::vector<FontFace> sorted(const FontWish& wish) const;

 private:
  struct Destroy {
    void operator()(FcConfig* config) const { FcConfigDestroy(config); }
  };
  std::unique_ptr<FcConfig, Destroy> config_;
};

}  // namespace rendering
