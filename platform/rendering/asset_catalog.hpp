#pragma once

#include <cairo.h>

#include <filesystem>
#include <map>
#include <memory>
#include <string>

#include "swiftui/geometry.hpp"
#include "uikit/color.hpp"

namespace rendering {

/// Names an asset as a view does.
struct AssetKey {
  std::string name = {};
  bool isSymbol = false;
  uikit::ColorScheme colorScheme = uikit::ColorScheme::light;

  friend auto operator<=>(const AssetKey&, const AssetKey&) = default;
};

/// The pictures that come with the extension, read when first drawn and then kept.
///
/// In FOLDER/images stand NAME@3x.png and, where the dark scheme has a picture of its own, NAME~dark@3x.png, with three
/// pixels to the point; without "@3x" a pixel is a point. In FOLDER/symbols stand NAME.svg, drawn in one colour.
class AssetCatalog {
 public:
  explicit AssetCatalog(std::filesystem::path folder);
  ~AssetCatalog();
  AssetCatalog(const AssetCatalog&) = delete;
  AssetCatalog& operator=(const AssetCatalog&) = delete;

  /// Its own size in points; nothing where there is no such asset or it cannot be read.
  swiftui::Size size(const AssetKey& key) const;

  /// Draws it stretched into the frame. A symbol is drawn as a stencil of the colour, an image in its own colours or,
  /// with a tint, as a stencil of that. An asset that is nowhere draws nothing.
  struct Drawing {
    swiftui::Rect frame = {};
    std::optional<uikit::RGBA> tint = std::nullopt;
    double opacity = 1;
  };
  void draw(cairo_t* cairo, const AssetKey& key, const Drawing& drawing) const;

 private:
  class Asset;
  class Bitmap;
  class Symbol;

  const Asset* find(const AssetKey& key) const;
  std::unique_ptr<Asset> load(const AssetKey& key) const;

  std::filesystem::path folder_;
  mutable std::map<AssetKey, std::unique_ptr<Asset>> assets_;
};

}  // namespace rendering
