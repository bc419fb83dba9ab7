#pragma once

#include <filesystem>
#include <string>

#include "rendering/asset_catalog.hpp"
#include "rendering/scene.hpp"
#include "rendering/text_engine.hpp"

namespace rendering {

/// Measures and paints with the fonts and pictures of one resources folder. Made once and kept: what it has read stays.
class Renderer final : public swiftui::LeafMeasurer {
 public:
  explicit Renderer(const std::filesystem::path& resources) : assets_(resources) {}

  swiftui::TextLayout layoutText(const std::string& content, const swiftui::TextStyle& style,
                                 swiftui::ProposedSize proposal) const override {
    return text_.layoutText(content, style, proposal);
  }
  swiftui::FontMetrics fontMetrics(const swiftui::Font& font) const override { return text_.fontMetrics(font); }
  swiftui::Size imageSize(const swiftui::ImageElement& image) const override;

  /// The scene as a PNG file with that many pixels to the point.
  std::string png(const Scene& scene, double scale) const;

 private:
  TextEngine text_;
  AssetCatalog assets_;
};

}  // namespace rendering
