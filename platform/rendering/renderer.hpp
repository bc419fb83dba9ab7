#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include "foundation/date.hpp"
#include "rendering/composition.hpp"

namespace rendering {

class AssetCatalog;
class TextEngine;

/// Measures and paints with the fonts and pictures of one resources folder. Made once and kept: what it has read stays.
class Renderer final : public swiftui::LeafMeasurer {
 public:
  explicit Renderer(const std::filesystem::path& resources);
  ~Renderer() override;
  Renderer(const Renderer&) = delete;
  Renderer& operator=(const Renderer&) = delete;

  swiftui::TextLayout layoutText(const std::string& content, const swiftui::TextStyle& style,
                                 swiftui::ProposedSize proposal) const override;
  swiftui::FontMetrics fontMetrics(const swiftui::Font& font) const override;
  swiftui::Size imageSize(const swiftui::ImageElement& image) const override;

  /// A PNG file with that many pixels to the point.
  std::string png(const Composition& composition, double scale) const;
  /// An SVG file, a unit to the point. Texts are outlines: they look the same where the fonts are missing.
  std::string svg(const Composition& composition) const;
  /// A PDF file, a unit to the point. Texts are texts in fonts that the file brings along, but for the rounded design,
  /// which is drawn. `created` is written into
  /// it, so that the same request gives the same bytes.
  std::string pdf(const Composition& composition, foundation::Date created) const;

 private:
  std::unique_ptr<TextEngine> text_;
  std::unique_ptr<AssetCatalog> assets_;
};

}  // namespace rendering
