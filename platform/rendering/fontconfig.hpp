#pragma once

#include <fontconfig/fontconfig.h>

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

namespace rendering {

struct DestroyFontconfig {
  void operator()(FcConfig* config) const { FcConfigDestroy(config); }
};
using FontconfigHandle = std::unique_ptr<FcConfig, DestroyFontconfig>;

struct DestroyCharacterSet {
  void operator()(FcCharSet* set) const { FcCharSetDestroy(set); }
};
using CharacterSet = std::unique_ptr<FcCharSet, DestroyCharacterSet>;

/// Where fonts are looked for.
enum class FontFolders {
  systemFont,  ///< the one folder that the system font is in
  all,         ///< and every other one of the machine
};

/// The system's font folders without its rules: reading those takes ten times as long and none of them is wanted, for
/// every font is asked for by its own family. Only emoji have an alias.
FontconfigHandle makeFontconfig(FontFolders folders);

/// The characters that the family's regular font has; null where there is none such.
CharacterSet charactersOf(FcConfig* config, std::string_view family);

/// What a font file says of itself.
struct FontFace {
  std::string family = {};
  int weight = FC_WEIGHT_REGULAR;  ///< fontconfig's scale
};

/// Makes a font file known. The answer is its first face; the family is empty where the file is no font.
FontFace addFontFile(FcConfig* config, const std::filesystem::path& file);

}  // namespace rendering
