#pragma once

#include "widgetkit/extension_service.hpp"
#include "widgetkit/widget_bundle.hpp"

namespace widgetkit {

/// The descriptor that the host leaves open for an extension: one end of a stream socket.
inline constexpr int hostDescriptor = 3;

/// Answers the host's requests one after the other until it closes its end. Returns the process's exit status: 0, or 2
/// with a message where no host is at the other end.
int serveHost(ExtensionService& service, int descriptor);

/// An extension's main: runs its bundle for the host that started it.
template <WidgetBundle Bundle>
int runBundle(const Bundle& bundle, ExtensionResources resources) {
  ExtensionService service(
      {.widgets = [&](const uikit::Platform& platform) { return bundle.body(platform); },
       .perform = [&](const std::string& intent, const foundation::JSON& parameters,
                      const uikit::Platform& platform) { return bundle.perform(intent, parameters, platform); },
       .diagnose = [&](const uikit::Platform& platform) { return bundle.diagnose(platform); },
       .nameDevice = [&](const std::optional<std::string>& identifier) { return bundle.nameDevice(identifier); }},
      std::move(resources));
  return serveHost(service, hostDescriptor);
}

}  // namespace widgetkit
