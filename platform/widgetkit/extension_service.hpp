#pragma once

#include <functional>
#include <optional>

#include "messages/replies.hpp"
#include "messages/requests.hpp"
#include "rendering/renderer.hpp"
#include "widgetkit/request_platform.hpp"
#include "widgetkit/static_configuration.hpp"

namespace widgetkit {

/// What a service asks of the extension that it serves; see WidgetBundle.
struct ExtensionContent {
  std::function<std::vector<StaticConfiguration>(const uikit::Platform&)> widgets = nullptr;
  std::function<bool(const std::string& intent, const foundation::JSON& parameters, const uikit::Platform&)> perform =
      nullptr;
  std::function<messages::Diagnosis(const uikit::Platform&)> diagnose = nullptr;
  std::function<std::string(const std::optional<std::string>& identifier)> nameDevice = nullptr;
};

/// Answers requests. Of what a request brings nothing is kept for the next; fonts and pictures once read are.
class ExtensionService {
 public:
  /// Told how far a long answer is.
  using ReportProgress = std::function<void(const messages::Progress&)>;

  ExtensionService(ExtensionContent content, ExtensionResources resources)
      : content_(std::move(content)), resources_(std::move(resources)) {}

  messages::Reply answer(const messages::Envelope& envelope, const ReportProgress& report = {});

 private:
  messages::Reply answer(const messages::DescribeCatalogue& request, const uikit::Platform& platform) const;
  messages::Reply answer(const messages::AskProvider& request, const uikit::Platform& platform) const;
  messages::Reply answer(const messages::DrawEntry& request, const uikit::Platform& platform);
  messages::Reply answer(const messages::DrawSheet& request, const uikit::Platform& platform);
  messages::Reply answer(const messages::PerformIntent& request, const uikit::Platform& platform) const;
  messages::Reply answer(const messages::DiagnoseContainer& request, const uikit::Platform& platform) const;
  messages::Reply answer(const messages::NameDevice& request, const uikit::Platform& platform) const;

  /// Made when something is first drawn: a process that only builds timelines needs no fonts.
  const rendering::Renderer& renderer();

  ExtensionContent content_;
  ExtensionResources resources_;
  std::optional<rendering::Renderer> renderer_;
  ReportProgress report_;  ///< of the request that is being answered
};

}  // namespace widgetkit
