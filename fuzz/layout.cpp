#include "swiftui/layout.hpp"

#include <fuzzer/FuzzedDataProvider.h>

#include <cmath>

#include "fuzz/fuzzing.hpp"
#include "support/fake_measurer.hpp"

namespace {

using namespace swiftui;

/// Views made of the bytes that are left.
class Gardener {
 public:
  Gardener(const std::uint8_t* data, std::size_t size) : bytes_(data, size) {}

  std::optional<double> length() {
    switch (bytes_.ConsumeIntegralInRange(0, 5)) {
      case 0:
        return std::nullopt;
      case 1:
        return 0;
      case 2:
        return infinity;
      default:
        return bytes_.ConsumeIntegralInRange(-20, 400) / 2.0;
    }
  }
  double finite() { return bytes_.ConsumeIntegralInRange(-20, 100) / 2.0; }

  View view(int depth) {
    View result = depth > 0 && bytes_.remaining_bytes() > 0 ? branch(depth) : leaf();
    while (bytes_.remaining_bytes() > 0 && bytes_.ConsumeBool()) result = modified(result, depth);
    return result;
  }

 private:
  std::vector<View> some(int depth) {
    std::vector<View> views;
    for (int count = bytes_.ConsumeIntegralInRange(0, 4); count > 0; --count) views.push_back(view(depth - 1));
    return views;
  }

  View leaf() {
    switch (bytes_.ConsumeIntegralInRange(0, 4)) {
      case 0:
        return text(bytes_.ConsumeRandomLengthString(30));
      case 1:
        return spacer(length());
      case 2:
        return filled(Circle{});
      case 3:
        return resizableImage("a");
      default:
        return emptyView();
    }
  }

  View branch(int depth) {
    switch (bytes_.ConsumeIntegralInRange(0, 6)) {
      case 0:
        return hstack({.spacing = length()}, some(depth));
      case 1:
        return vstack({.spacing = length()}, some(depth));
      case 2:
        return zstack(Alignment::center, some(depth));
      case 3:
        return viewThatFits(some(depth));
      case 4:
        return group(some(depth));
      case 5:
        return geometryReader([content = view(depth - 1)](Size) { return content; });
      default:
        return leaf();
    }
  }

  View modified(const View& view, int depth) {
    switch (bytes_.ConsumeIntegralInRange(0, 8)) {
      case 0:
        return view.padding({.top = finite(), .leading = finite(), .bottom = finite(), .trailing = finite()});
      case 1:
        return view.frame(FixedFrame{.width = length(), .height = length()});
      case 2:
        return view.frame(FlexibleFrame{.minWidth = length(), .maxWidth = length(), .maxHeight = length()});
      case 3:
        return view.fixedSize(bytes_.ConsumeBool(), bytes_.ConsumeBool());
      case 4:
        return view.layoutPriority(finite());
      case 5:
        return view.offset({.x = finite(), .y = finite()});
      case 6:
        return view.background(depth > 0 ? this->view(depth - 1) : leaf());
      case 7:
        return view.lineLimit(bytes_.ConsumeIntegralInRange(-1, 3));
      default:
        return view.minimumScaleFactor(finite());
    }
  }

  FuzzedDataProvider bytes_;
};

void requireSound(const PlacedElement& placed) {
  const Rect& frame = placed.frame;
  fuzzing::require(!std::isnan(frame.origin.x) && !std::isnan(frame.origin.y), "a place is a number");
  fuzzing::require(frame.size.width >= 0 && frame.size.height >= 0, "no size is negative");
  for (const PlacedElement& child : placed.children) requireSound(child);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Gardener gardener(data, size);
  const Size room{.width = std::abs(gardener.finite()) * 8, .height = std::abs(gardener.finite()) * 8};
  const ResolvedWidget widget = resolve(gardener.view(4), {});
  const support::FakeMeasurer measurer;
  const PlacedElement placed = layout(widget.content, {.bounds = {.size = room}}, measurer);
  requireSound(placed);
  const Size taken = sizeThatFits(widget.content, {.width = room.width, .height = room.height}, 2, measurer);
  fuzzing::require(taken.width == placed.frame.size.width && taken.height == placed.frame.size.height,
                   "a parent keeps the size that its child chose");
  return 0;
}
