#include "rendering/asset_catalog.hpp"

#include "foundation/file_manager.hpp"

namespace rendering {

swiftui::Size AssetCatalog::size(const AssetKey& key) const {
  const auto picture = find(key);
  return picture ? picture->size() : swiftui::Size{};
}

void AssetCatalog::draw(cairo_t* cairo, const AssetKey& key, const Drawing& drawing) const {
  const auto picture = find(key);
  if (!picture || drawing.frame.size.width <= 0 || drawing.frame.size.height <= 0) return;
  Drawing drawn = drawing;
  if (key.isSymbol && !drawn.tint) drawn.tint = uikit::RGBA{};
  cairo_save(cairo);
  picture->draw(cairo, drawn);
  cairo_restore(cairo);
}

std::shared_ptr<const Picture> AssetCatalog::find(const AssetKey& key) const {
  auto own = findOwn(key);
  return own || key.isSymbol ? own : others_.find(key.folder, key.name, key.colorScheme);
}

std::shared_ptr<const Picture> AssetCatalog::findOwn(const AssetKey& key) const {
  if (!isPictureName(key.name)) return nullptr;
  const auto files =
      key.isSymbol ? std::vector{PictureFile{.name = key.name + ".svg"}} : pictureFiles(key.name, key.colorScheme);
  for (const PictureFile& file : files) {
    const auto path = folder_ / (key.isSymbol ? "symbols" : "images") / file.name;
    if (const auto known = own_.find(path); known != own_.end()) return known->second;
    const auto bytes = foundation::readFile(path);
    if (!bytes) continue;
    std::shared_ptr<const Picture> picture =
        file.density == 0 ? pictureOfSVG(*bytes) : pictureOfPNG(*bytes, file.density);
    if (picture) return own_.emplace(path, std::move(picture)).first->second;
  }
  return nullptr;
}

}  // namespace rendering
