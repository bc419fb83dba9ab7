#pragma once

#include <functional>
#include <optional>

#include "messages/replies.hpp"
#include "messages/requests.hpp"
#include "rendering/renderer.hpp"
#include "widgetkit/request_platform.hpp"
#include "widgetkit/static_configuration.hpp"

namespace widgetkit {

/// Answers requests. Of what a request brings nothing is kept for the next; fonts and pictures once read are.
class ExtensionService {
 public:
  using Widgets = std::function<std::vector<StaticConfiguration>(const uikit::Platform&)>;

  ExtensionService(Widgets widgets, ExtensionResources resources)
      : widgets_(std::move(widgets)), resources_(std::move(resources)) {}

  messages::Reply answer(const messages::Envelope& envelope);

 private:
  messages::Reply answer(const messages::DescribeCatalogue& request, const uikit::Platform& platform);
  messages::Reply answer(const messages::AskProvider& request, const uikit::Platform& platform);
  messages::Reply answer(const messages::DrawEntry& request, const uikit::Platform& platform);

  /// Made when something is first drawn: a process that only builds timelines needs no fonts.
  const rendering::Renderer& renderer();

  Widgets widgets_;
  ExtensionResources resources_;
  std::optional<rendering::Renderer> renderer_;
};

}  // namespace widgetkit
