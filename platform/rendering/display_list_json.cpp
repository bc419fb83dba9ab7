#include "rendering/display_list_json.hpp"

#include <cmath>

#include "foundation/iso8601.hpp"
#include "swiftui/overload.hpp"

namespace rendering {
namespace {

using foundation::JSON;
using namespace swiftui;

JSON jsonOf(Rect frame) {
  return JSON::array({jsonOfLength(frame.origin.x), jsonOfLength(frame.origin.y), jsonOfLength(frame.size.width),
                      jsonOfLength(frame.size.height)});
}

void addInk(JSON& json, const Ink& ink) {
  json["opacity"] = jsonOfLength(ink.opacity);
  json["color"] = uikit::hexText(ink.color);
}

JSON jsonOf(const DrawText& draw) {
  const Font& font = draw.style.font;
  JSON json{{"draw", "text"}, {"text", draw.shown}, {"frame", jsonOf(draw.frame)}};
  json["font"] = font.name.empty() ? "system" : font.name;
  json["size"] = jsonOfLength(font.size);
  json["weight"] = nameOf(font.weight);
  json["design"] = nameOf(font.design);
  if (font.italic) json["italic"] = true;
  if (draw.style.kerning != 0) json["kerning"] = jsonOfLength(draw.style.kerning);
  if (draw.scale != 1) json["scale"] = jsonOfLength(draw.scale);
  addInk(json, draw.ink);
  return json;
}

JSON jsonOf(const DrawImage& draw) {
  JSON json{{"draw", "image"}, {"name", draw.name}, {"frame", jsonOf(draw.frame)}};
  if (draw.tint) json["tint"] = uikit::hexText(*draw.tint);
  if (draw.opacity != 1) json["opacity"] = jsonOfLength(draw.opacity);
  return json;
}

JSON jsonOf(const StrokeStyle& stroke) {
  JSON dash = JSON::array();
  for (const double length : stroke.dash) dash.push_back(jsonOfLength(length));
  JSON json{{"width", jsonOfLength(stroke.lineWidth)}, {"dash", dash}};
  json["lineCap"] = stroke.lineCap == LineCap::round ? "round" : "butt";
  return json;
}

JSON jsonOf(const DrawShape& draw) {
  JSON json{{"draw", "shape"}};
  std::visit(Overload{
                 [&](const Rectangle&) { json["shape"] = "rectangle"; },
                 [&](const RoundedRectangle& shape) {
                   json["shape"] = "roundedRectangle";
                   json["cornerRadius"] = jsonOfLength(shape.cornerRadius);
                 },
                 [&](const Circle&) { json["shape"] = "circle"; },
                 [&](const Arc& arc) {
                   json["shape"] = "arc";
                   json["startAngle"] = jsonOfLength(arc.startAngle);
                   json["endAngle"] = jsonOfLength(arc.endAngle);
                 },
                 [&](const PathShape&) { json["shape"] = "path"; },
             },
             draw.shape);
  json["frame"] = jsonOf(draw.frame);
  json["stroke"] = draw.stroke ? jsonOf(*draw.stroke) : JSON();
  json["fill"] = draw.stroke ? JSON() : JSON(uikit::hexText(draw.ink.color));
  addInk(json, draw.ink);
  return json;
}

JSON jsonOf(const appintents::ParameterValue& value) {
  return std::visit(Overload{
                        [](const std::string& text) { return JSON(text); },
                        [](const std::optional<foundation::Date>& date) {
                          return date ? JSON(foundation::formatMoment(*date)) : JSON();
                        },
                    },
                    value);
}

void describe(JSON& entry, const ToggleMeaning& toggle) {
  entry["role"] = "checkbox";
  entry["checked"] = toggle.isOn;
  for (const auto& parameter : toggle.intent.parameters) entry[parameter.title] = jsonOf(parameter.value);
}

void describe(JSON& entry, const GaugeMeaning& gauge) {
  entry["role"] = "gauge";
  entry["value"] = jsonOfLength(gauge.value);
  entry["total"] = jsonOfLength(gauge.total);
}

void describe(JSON& entry, const LinkMeaning& link) {
  entry["role"] = "link";
  entry["url"] = link.url;
}

}  // namespace

JSON jsonOfLength(double points) {
  const double rounded = std::round(points * 100) / 100;
  // Whole numbers are printed as such, and there is no "-0".
  if (rounded == std::trunc(rounded)) return static_cast<long long>(rounded);
  return rounded;
}

JSON jsonOf(const DisplayList& list) {
  JSON json = JSON::array();
  for (const DrawCommand& command : list) {
    json.push_back(std::visit([](const auto& draw) { return jsonOf(draw); }, command));
  }
  return json;
}

JSON jsonOf(const Meaning& meaning) {
  JSON json = JSON::array();
  for (const MeaningItem& item : meaning) {
    JSON entry{{"role", item.isImage ? "image" : "text"}, {"label", item.label}};
    if (item.control) std::visit([&](const auto& control) { describe(entry, control); }, *item.control);
    entry["frame"] = jsonOf(item.frame);
    json.push_back(std::move(entry));
  }
  return json;
}

}  // namespace rendering
