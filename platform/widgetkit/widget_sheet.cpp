#include "widgetkit/widget_sheet.hpp"

#include <algorithm>

#include "swiftui/view.hpp"
#include "widgetkit/widget_drawing.hpp"

namespace widgetkit {
namespace {

using namespace swiftui;
using rendering::Composition;
using rendering::Scene;

// Lengths of the sheet, in points.
constexpr double margin = 32;
constexpr double widestSheet = 1120;
constexpr double gapBetweenPictures = 20;
constexpr double gapBetweenKinds = 44;
constexpr double titleHeight = 28;
constexpr double captionHeight = 22;
/// So that the name of a family has room below its picture.
constexpr double narrowestColumn = 76;

constexpr uikit::RGBA lightGround{.red = 0.90, .green = 0.91, .blue = 0.94};
constexpr uikit::RGBA darkGround{.red = 0.07, .green = 0.07, .blue = 0.09};

/// The pictures of one kind, side by side, with the kind's name above and each family's name below.
struct Block {
  std::string name = {};
  std::vector<std::pair<std::string, Scene>> pictures = {};

  static double columnWidth(const Scene& scene) { return std::max(scene.size.width, narrowestColumn); }

  double width() const {
    double sum = -gapBetweenPictures;
    for (const auto& [family, scene] : pictures) sum += columnWidth(scene) + gapBetweenPictures;
    return sum;
  }
  double height() const {
    double tallest = 0;
    for (const auto& [family, scene] : pictures) tallest = std::max(tallest, scene.size.height);
    return titleHeight + tallest + captionHeight;
  }
};

class SheetBuilder {
 public:
  SheetBuilder(const uikit::Platform& platform, double displayScale, const LeafMeasurer& measurer)
      : platform_(platform), displayScale_(displayScale), measurer_(measurer) {
    sheet_.ground = platform.appearance == ColorScheme::dark ? darkGround : lightGround;
  }

  void add(const Block& block) {
    if (x_ > margin && x_ + block.width() > widestSheet - margin) startRow();
    addText(block.name, system(15, FontWeight::semibold), {.x = x_, .y = y_}, {block.width(), titleHeight});
    double x = x_;
    for (const auto& [family, scene] : block.pictures) {
      sheet_.tiles.push_back({.origin = {.x = x, .y = y_ + titleHeight}, .scene = scene});
      const double step = Block::columnWidth(scene) + gapBetweenPictures;
      // Long names reach into the gap behind a narrow picture.
      addText(family, system(9), {.x = x, .y = y_ + titleHeight + scene.size.height + 5}, {step - 4, captionHeight});
      x += step;
    }
    right_ = std::max(right_, x - gapBetweenPictures);
    x_ = x - gapBetweenPictures + gapBetweenKinds;
    rowHeight_ = std::max(rowHeight_, block.height());
  }

  Composition finished() {
    sheet_.size = {.width = right_ + margin, .height = y_ + rowHeight_ + margin};
    return std::move(sheet_);
  }

 private:
  void startRow() {
    x_ = margin;
    y_ += rowHeight_ + gapBetweenKinds / 2;
    rowHeight_ = 0;
  }

  void addText(const std::string& content, const Font& font, Point origin, Size size) {
    const View view = text(content).font(font).lineLimit(1).opacity(0.85).frame(
        {.maxWidth = infinity, .maxHeight = infinity, .alignment = Alignment::topLeading});
    const ResolvedWidget resolved = resolve(view, {.colorScheme = platform_.appearance});
    sheet_.tiles.push_back(
        {.origin = origin,
         .scene = rendering::compose(resolved, {.size = size, .displayScale = displayScale_}, measurer_)});
  }

  const uikit::Platform& platform_;
  double displayScale_;
  const LeafMeasurer& measurer_;
  Composition sheet_;
  double x_ = margin;
  double y_ = margin;
  double rowHeight_ = 0;
  double right_ = margin;  ///< where the widest row ends
};

}  // namespace

Composition sheetOf(std::span<const StaticConfiguration> widgets, const uikit::Platform& platform, double displayScale,
                    const LeafMeasurer& measurer, const std::function<void(const messages::Progress&)>& report) {
  messages::Progress progress;
  for (const StaticConfiguration& widget : widgets) progress.total += static_cast<int>(widget.families().size());

  SheetBuilder sheet(platform, displayScale, measurer);
  for (const StaticConfiguration& widget : widgets) {
    Block block{.name = widget.describe().displayName};
    const messages::Timeline snapshot = widget.entries(platform, messages::ProviderOperation::snapshot);
    for (const WidgetFamily family : widget.families()) {
      report(progress);
      ++progress.done;
      try {
        block.pictures.emplace_back(
            nameOf(family), sceneOf(widget, family, snapshot.entries.front(), platform, displayScale, measurer, false));
      } catch (const DrawingError&) {
        continue;
      }
    }
    if (!block.pictures.empty()) sheet.add(block);
  }
  return sheet.finished();
}

}  // namespace widgetkit
