#include "rendering/cairo_player.hpp"

#include <cmath>
#include <numbers>

#include "swiftui/overload.hpp"

namespace rendering {
namespace {

using namespace swiftui;

void setSource(cairo_t* cairo, const Ink& ink) {
  const uikit::RGBA& color = ink.color;
  cairo_set_source_rgba(cairo, color.red, color.green, color.blue, color.alpha * ink.opacity);
}

void setPen(cairo_t* cairo, const StrokeStyle& stroke) {
  cairo_set_line_width(cairo, stroke.lineWidth);
  cairo_set_line_cap(cairo, stroke.lineCap == LineCap::round ? CAIRO_LINE_CAP_ROUND : CAIRO_LINE_CAP_BUTT);
  cairo_set_line_join(cairo, stroke.lineJoin == LineJoin::round ? CAIRO_LINE_JOIN_ROUND : CAIRO_LINE_JOIN_MITER);
  cairo_set_miter_limit(cairo, stroke.miterLimit);
  cairo_set_dash(cairo, stroke.dash.data(), static_cast<int>(stroke.dash.size()), 0);
}

Rect inset(const Rect& frame, double by) {
  return {
      .origin = {.x = frame.origin.x + by, .y = frame.origin.y + by},
      .size = {.width = std::max(0.0, frame.size.width - 2 * by), .height = std::max(0.0, frame.size.height - 2 * by)}};
}

double radians(double degrees) {
  return degrees * std::numbers::pi / 180;
}

void addShape(cairo_t* cairo, const Shape& shape, const Rect& frame, double insetBy) {
  cairo_new_path(cairo);
  std::visit(Overload{
                 [&](const Rectangle&) {
                   cairo_rectangle(cairo, frame.origin.x, frame.origin.y, frame.size.width, frame.size.height);
                 },
                 [&](const RoundedRectangle& rounded) {
                   addRoundedRectangle(cairo, frame, std::max(0.0, rounded.cornerRadius - insetBy));
                 },
                 [&](const Circle&) {
                   const double radius = std::min(frame.size.width, frame.size.height) / 2;
                   cairo_arc(cairo, frame.origin.x + frame.size.width / 2, frame.origin.y + frame.size.height / 2,
                             radius, 0, 2 * std::numbers::pi);
                   cairo_close_path(cairo);
                 },
                 [&](const Arc& arc) {
                   const double radius = std::min(frame.size.width, frame.size.height) / 2;
                   cairo_arc(cairo, frame.origin.x + frame.size.width / 2, frame.origin.y + frame.size.height / 2,
                             radius, radians(arc.startAngle), radians(arc.endAngle));
                 },
                 [&](const PathShape& own) {
                   for (const Point& point : own.path(frame)) cairo_line_to(cairo, point.x, point.y);
                 },
             },
             shape);
}

}  // namespace

void addRoundedRectangle(cairo_t* cairo, const Rect& frame, double radius) {
  constexpr double quarter = std::numbers::pi / 2;
  const auto [x, y] = frame.origin;
  const auto [width, height] = frame.size;
  const double r = std::min({radius, width / 2, height / 2});
  cairo_new_sub_path(cairo);
  cairo_arc(cairo, x + width - r, y + r, r, -quarter, 0);
  cairo_arc(cairo, x + width - r, y + height - r, r, 0, quarter);
  cairo_arc(cairo, x + r, y + height - r, r, quarter, 2 * quarter);
  cairo_arc(cairo, x + r, y + r, r, 2 * quarter, 3 * quarter);
  cairo_close_path(cairo);
}

void CairoPlayer::play(const DisplayList& list) const {
  for (const DrawCommand& command : list) {
    std::visit([this](const auto& draw) { paint(draw); }, command);
  }
}

double CairoPlayer::snapped(double points) const {
  return std::floor(points * scale_ + 0.5) / scale_;
}

Rect CairoPlayer::snapped(Rect frame) const {
  const double left = snapped(frame.origin.x);
  const double top = snapped(frame.origin.y);
  // What is finer than a pixel takes one, wherever it stands.
  const double pixel = 1 / scale_;
  return {.origin = {.x = left, .y = top},
          .size = {.width = std::max(pixel, snapped(frame.origin.x + frame.size.width) - left),
                   .height = std::max(pixel, snapped(frame.origin.y + frame.size.height) - top)}};
}

void CairoPlayer::paint(const DrawText& draw) const {
  setSource(cairo_, draw.ink);
  for (const DrawText::Line& line : draw.lines) {
    text_.drawLine(cairo_, line.content, draw.style, draw.scale,
                   {.x = snapped(line.origin.x), .y = snapped(line.origin.y)});
  }
}

void CairoPlayer::paint(const DrawImage& draw) const {
  assets_.draw(cairo_,
               {.name = draw.name, .isSymbol = draw.isSymbol, .colorScheme = draw.colorScheme, .folder = draw.folder},
               {.frame = snapped(draw.frame), .tint = draw.tint, .opacity = draw.opacity});
}

void CairoPlayer::paint(const DrawShape& draw) const {
  const Rect frame = snapped(draw.frame);
  setSource(cairo_, draw.ink);
  if (!draw.stroke) {
    addShape(cairo_, draw.shape, frame, 0);
    cairo_fill(cairo_);
    return;
  }
  const double insetBy = draw.isStrokeInside ? draw.stroke->lineWidth / 2 : 0;
  addShape(cairo_, draw.shape, inset(frame, insetBy), insetBy);
  setPen(cairo_, *draw.stroke);
  cairo_stroke(cairo_);
}

}  // namespace rendering
