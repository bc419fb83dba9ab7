#pragma once

#include <fontconfig/fontconfig.h>

#include <filesystem>
#include <memory>
#include <string>

namespace rendering {

struct DestroyFontconfig {
  void operator()(FcConfig* config) const { FcConfigDestroy(config); }
};
using FontconfigHandle = std::unique_ptr<FcConfig, DestroyFontconfig>;

/// The system's font folders without its rules: reading those takes ten times as long and none of them is wanted, for
/// every font is asked for by its own family. Only emoji have an alias.
FontconfigHandle makeFontconfig();

/// What a font file says of itself.
struct FontFace {
  std::string family = {};
  int weight = FC_WEIGHT_REGULAR;  ///< fontconfig's scale
};

/// The first face of a font file; the family is empty where the file is no font.
FontFace readFontFace(const std::filesystem::path& file);

}  // namespace rendering
