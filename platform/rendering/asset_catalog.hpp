#pragma once

#include <filesystem>
#include <map>
#include <memory>
#include <string>

#include "rendering/icon_folder.hpp"
#include "rendering/picture.hpp"

namespace rendering {

/// Names an asset as a view does.
struct AssetKey {
  std::string name = {};
  bool isSymbol = false;
  uikit::ColorScheme colorScheme = uikit::ColorScheme::light;
  std::filesystem::path folder = {};  ///< where an image is looked for that is no asset; empty for nowhere
};

/// The pictures that come with the extension, read when first drawn and then kept, and those of other folders, see
/// IconFolders.
///
/// In FOLDER/images stand NAME.svg, with a unit to the point, or NAME@3x.png, with three pixels to the point; without
/// "@3x" a pixel is a point. NAME~dark.svg and so on stand for them where the dark scheme has a picture of its own. In
/// FOLDER/symbols stand NAME.svg.
class AssetCatalog {
 public:
  explicit AssetCatalog(std::filesystem::path folder) : folder_(std::move(folder)) {}
  ~AssetCatalog() = default;
  AssetCatalog(const AssetCatalog&) = delete;
  AssetCatalog& operator=(const AssetCatalog&) = delete;

  /// Its own size in points; nothing where there is no such asset or it cannot be read.
  swiftui::Size size(const AssetKey& key) const;

  /// Draws it, a symbol always as a stencil: black without a tint. An asset that is nowhere draws nothing.
  void draw(cairo_t* cairo, const AssetKey& key, const Drawing& drawing) const;

 private:
  std::shared_ptr<const Picture> find(const AssetKey& key) const;
  std::shared_ptr<const Picture> findOwn(const AssetKey& key) const;

  std::filesystem::path folder_;
  mutable std::map<std::filesystem::path, std::shared_ptr<const Picture>> own_;  ///< by file, none missing
  mutable IconFolders others_;
};

}  // namespace rendering
