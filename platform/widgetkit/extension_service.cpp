#include "widgetkit/extension_service.hpp"

#include <expected>

#include "widgetkit/widget_drawing.hpp"
#include "widgetkit/widget_sheet.hpp"
#include "widgetkit/widget_size.hpp"

namespace widgetkit {
namespace {

using messages::Failure;
using messages::Reply;

constexpr double smallestScale = 0.1;
constexpr double largestScale = 10;

Failure usage(std::string message) {
  return {.reason = Failure::Reason::usage, .message = std::move(message)};
}

std::optional<Failure> refusedScale(double scale) {
  if (scale >= smallestScale && scale <= largestScale) return std::nullopt;
  return usage("a scale has to lie from 0.1 to 10 pixels per point");
}

std::expected<StaticConfiguration, Failure> widgetNamed(const std::vector<StaticConfiguration>& widgets,
                                                        const std::string& kind) {
  std::string known;
  for (const StaticConfiguration& widget : widgets) {
    if (widget.kind() == kind || widget.shortName() == kind) return widget;
    known += (known.empty() ? "" : ", ") + widget.shortName() + " (" + widget.kind() + ")";
  }
  return std::unexpected(usage("kind '" + kind + "' is unknown; use " + known));
}

std::expected<swiftui::WidgetFamily, Failure> familyNamed(const std::string& name) {
  if (const auto family = swiftui::widgetFamilyNamed(name)) return *family;
  std::string known;
  for (const auto& [family, text] : swiftui::widgetFamilies) {
    known += (known.empty() ? "" : ", ") + std::string(text);
  }
  return std::unexpected(usage("family '" + name + "' is unknown; use " + known));
}

}  // namespace

Reply ExtensionService::answer(const messages::Envelope& envelope, const ReportProgress& report) {
  report_ = report ? report : [](const messages::Progress&) {};
  const auto platform = platformFor(envelope.world, resources_);
  if (!platform) return platform.error();
  try {
    return std::visit([&](const auto& request) { return answer(request, *platform); }, envelope.request);
  } catch (const DrawingError& error) {
    return Failure{.reason = Failure::Reason::failed, .message = error.what()};
  } catch (const foundation::JSON::exception& error) {
    return Failure{.reason = Failure::Reason::failed,
                   .message = std::string("the request does not fit: ") + error.what()};
  }
}

Reply ExtensionService::answer(const messages::DescribeCatalogue&, const uikit::Platform& platform) const {
  messages::Catalogue catalogue;
  for (const StaticConfiguration& widget : content_.widgets(platform)) catalogue.widgets.push_back(widget.describe());
  for (const auto& [family, name] : swiftui::widgetFamilies) {
    const swiftui::Size size = widgetSize(family, platform.screen);
    catalogue.sizes.push_back({.family = std::string(name), .width = size.width, .height = size.height});
  }
  return catalogue;
}

Reply ExtensionService::answer(const messages::AskProvider& request, const uikit::Platform& platform) const {
  const auto widget = widgetNamed(content_.widgets(platform), request.kind);
  if (!widget) return widget.error();
  return widget->entries(platform, request.operation);
}

Reply ExtensionService::answer(const messages::DrawEntry& request, const uikit::Platform& platform) {
  const auto widget = widgetNamed(content_.widgets(platform), request.kind);
  if (!widget) return widget.error();
  const auto family = familyNamed(request.family);
  if (!family) return family.error();
  if (const auto refused = refusedScale(request.scale)) return *refused;
  using enum messages::PictureFormat;
  const bool isHeard = request.format == text || request.format == json;
  const rendering::Scene scene = sceneOf(*widget, *family, request.entry, platform, request.scale, renderer(), isHeard);
  if (request.format == text) return messages::Picture{.bytes = rendering::plainText(scene)};
  if (request.format == json) return messages::Picture{.bytes = documentOf(scene, widget->kind(), *family)};
  return messages::Picture{
      .bytes = pictureOf(rendering::alone(scene), request.format, request.scale, platform.now, renderer())};
}

Reply ExtensionService::answer(const messages::DrawSheet& request, const uikit::Platform& platform) {
  using enum messages::PictureFormat;
  if (const auto refused = refusedScale(request.scale)) return *refused;
  if (request.format == text || request.format == json) return usage("a sheet is a picture: PNG, SVG or PDF");
  const auto sheet = sheetOf(content_.widgets(platform), platform, request.scale, renderer(), report_);
  return messages::Picture{.bytes = pictureOf(sheet, request.format, request.scale, platform.now, renderer())};
}

Reply ExtensionService::answer(const messages::PerformIntent& request, const uikit::Platform& platform) const {
  if (content_.perform(request.intent, request.parameters, platform)) return messages::Done{};
  return usage("action '" + request.intent + "' is unknown");
}

Reply ExtensionService::answer(const messages::DiagnoseContainer&, const uikit::Platform& platform) const {
  return content_.diagnose(platform);
}

Reply ExtensionService::answer(const messages::NameDevice& request, const uikit::Platform&) const {
  return messages::DeviceName{.name = content_.nameDevice(request.identifier)};
}

const rendering::Renderer& ExtensionService::renderer() {
  if (!renderer_) renderer_.emplace(resources_.folder);
  return *renderer_;
}

}  // namespace widgetkit
