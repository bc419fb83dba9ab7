#include "widgetkit/widget_size.hpp"

#include <algorithm>
#include <array>
#include <cstdlib>

namespace widgetkit {
namespace {

using swiftui::Size;
using swiftui::WidgetFamily;

struct SizeRow {
  uikit::Screen screen;
  Size small;
  Size medium;
  Size large;
  Size extraLarge;
  Size circular;
  Size rectangular;
  Size inLine;
};

// Phones have no extra large family; asked for it, they draw it as the smallest tablet does. Sizes of the lock screen
// are not published for tablets and for the smallest phone; they stand in from 390x844 and from 375x667.
constexpr Size tabletExtraLarge{634.5, 305.5};
constexpr Size circular72{72, 72};
constexpr Size circular76{76, 76};
constexpr Size circular68{68, 68};
constexpr Size rectangular160{160, 72};
constexpr Size inLine234{234, 26};

constexpr SizeRow phone(int width, int height, Size small, Size medium, Size large, Size circular, Size rectangular,
                        Size inLine) {
  return {{width, height}, small, medium, large, tabletExtraLarge, circular, rectangular, inLine};
}

constexpr SizeRow tablet(int width, int height, Size small, Size medium, Size large, Size extraLarge) {
  return {{width, height}, small, medium, large, extraLarge, circular72, rectangular160, inLine234};
}

constexpr std::array<SizeRow, 20> sizeTable{{
    phone(430, 932, {170, 170}, {364, 170}, {364, 382}, circular76, {172, 76}, {257, 26}),
    phone(428, 926, {170, 170}, {364, 170}, {364, 382}, circular76, {172, 76}, {257, 26}),
    phone(414, 896, {169, 169}, {360, 169}, {360, 379}, circular76, rectangular160, {248, 26}),
    phone(414, 736, {159, 159}, {348, 157}, {348, 357}, circular76, {170, 76}, {248, 26}),
    phone(393, 852, {158, 158}, {338, 158}, {338, 354}, circular72, rectangular160, inLine234),
    phone(390, 844, {158, 158}, {338, 158}, {338, 354}, circular72, rectangular160, inLine234),
    phone(375, 812, {155, 155}, {329, 155}, {329, 345}, circular72, {157, 72}, {225, 26}),
    phone(375, 667, {148, 148}, {321, 148}, {321, 324}, circular68, {153, 68}, {225, 26}),
    phone(360, 780, {155, 155}, {329, 155}, {329, 345}, circular72, {157, 72}, {225, 26}),
    phone(320, 568, {141, 141}, {292, 141}, {292, 311}, circular68, {153, 68}, {225, 26}),
    tablet(744, 1133, {141, 141}, {305.5, 141}, {305.5, 305.5}, {634.5, 305.5}),
    tablet(768, 1024, {141, 141}, {305.5, 141}, {305.5, 305.5}, {634.5, 305.5}),
    tablet(810, 1080, {146, 146}, {320.5, 146}, {320.5, 320.5}, {669, 320.5}),
    tablet(820, 1180, {155, 155}, {342, 155}, {342, 342}, {715.5, 342}),
    tablet(834, 1194, {155, 155}, {342, 155}, {342, 342}, {715.5, 342}),
    tablet(834, 1112, {150, 150}, {327.5, 150}, {327.5, 327.5}, {682, 327.5}),
    tablet(954, 1373, {162, 162}, {350, 162}, {350, 350}, {726, 350}),
    tablet(970, 1389, {162, 162}, {350, 162}, {350, 350}, {726, 350}),
    tablet(1024, 1366, {170, 170}, {378.5, 170}, {378.5, 378.5}, {795, 378.5}),
    tablet(1192, 1590, {188, 188}, {412, 188}, {412, 412}, {860, 412}),
}};

const SizeRow& rowFor(uikit::Screen screen) {
  const SizeRow* best = nullptr;
  for (const SizeRow& row : sizeTable) {
    if (row.screen == screen) return row;
    if (row.screen.width > screen.width) continue;
    const auto distance = [&](const SizeRow& candidate) { return std::abs(candidate.screen.height - screen.height); };
    const bool isCloser = best == nullptr || row.screen.width > best->screen.width ||
                          (row.screen.width == best->screen.width && distance(row) < distance(*best));
    if (isCloser) best = &row;
  }
  if (best != nullptr) return *best;
  return *std::ranges::min_element(sizeTable, {}, [](const SizeRow& row) { return row.screen.width; });
}

}  // namespace

Size widgetSize(WidgetFamily family, uikit::Screen screen) {
  const SizeRow& row = rowFor(screen);
  switch (family) {
    case WidgetFamily::systemSmall:
      return row.small;
    case WidgetFamily::systemMedium:
      return row.medium;
    case WidgetFamily::systemLarge:
      return row.large;
    case WidgetFamily::systemExtraLarge:
      return row.extraLarge;
    case WidgetFamily::accessoryCircular:
      return row.circular;
    case WidgetFamily::accessoryRectangular:
      return row.rectangular;
    case WidgetFamily::accessoryInline:
      break;
  }
  return row.inLine;
}

double widgetCornerRadius(WidgetFamily family, uikit::Screen screen) {
  if (swiftui::isAccessory(family)) return 0;
  return 0.14 * widgetSize(WidgetFamily::systemSmall, screen).width;
}

}  // namespace widgetkit
