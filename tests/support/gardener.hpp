#pragma once

#include <optional>
#include <vector>

#include "support/byte_source.hpp"
#include "swiftui/layout.hpp"

namespace support {

/// Grows trees of views out of bytes: the same tree from the same bytes.
class Gardener {
 public:
  explicit Gardener(std::span<const std::uint8_t> bytes) : bytes_(bytes) {}

  /// Nothing, none, endless, or any; it may be less than nothing.
  std::optional<double> length() {
    switch (bytes_.between(0, 5)) {
      case 0:
        return std::nullopt;
      case 1:
        return 0;
      case 2:
        return swiftui::infinity;
      default:
        return bytes_.between(-20, 400) / 2.0;
    }
  }
  double finite() { return bytes_.between(-20, 100) / 2.0; }

  swiftui::View view(int depth) {
    swiftui::View result = depth > 0 && !bytes_.isEmpty() ? branch(depth) : leaf();
    while (!bytes_.isEmpty() && bytes_.coin()) result = modified(result, depth);
    return result;
  }

 private:
  std::vector<swiftui::View> some(int depth) {
    std::vector<swiftui::View> views;
    for (int count = bytes_.between(0, 4); count > 0; --count) views.push_back(view(depth - 1));
    return views;
  }

  swiftui::View leaf() {
    switch (bytes_.between(0, 4)) {
      case 0:
        return swiftui::text(bytes_.text(30));
      case 1:
        return swiftui::spacer(length());
      case 2:
        return swiftui::filled(swiftui::Circle{});
      case 3:
        return swiftui::resizableImage("a");
      default:
        return swiftui::emptyView();
    }
  }

  swiftui::View branch(int depth) {
    switch (bytes_.between(0, 6)) {
      case 0:
        return swiftui::hstack({.spacing = length()}, some(depth));
      case 1:
        return swiftui::vstack({.spacing = length()}, some(depth));
      case 2:
        return swiftui::zstack(swiftui::Alignment::center, some(depth));
      case 3:
        return swiftui::viewThatFits(some(depth));
      case 4:
        return swiftui::group(some(depth));
      case 5:
        return swiftui::geometryReader([content = view(depth - 1)](swiftui::Size) { return content; });
      default:
        return leaf();
    }
  }

  swiftui::View modified(const swiftui::View& view, int depth) {
    switch (bytes_.between(0, 8)) {
      case 0:
        return view.padding({.top = finite(), .leading = finite(), .bottom = finite(), .trailing = finite()});
      case 1:
        return view.frame(swiftui::FixedFrame{.width = length(), .height = length()});
      case 2:
        return view.frame(swiftui::FlexibleFrame{.minWidth = length(), .maxWidth = length(), .maxHeight = length()});
      case 3:
        return view.fixedSize(bytes_.coin(), bytes_.coin());
      case 4:
        return view.layoutPriority(finite());
      case 5:
        return view.offset({.x = finite(), .y = finite()});
      case 6:
        return view.background(depth > 0 ? this->view(depth - 1) : leaf());
      case 7:
        return view.lineLimit(bytes_.between(-1, 3));
      default:
        return view.minimumScaleFactor(finite());
    }
  }

  ByteSource bytes_;
};

}  // namespace support
