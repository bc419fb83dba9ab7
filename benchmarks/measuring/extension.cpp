#include "measuring/extension.hpp"

#include "measuring/paths.hpp"

namespace measuring {

Extension::Extension(messages::World world)
    : world_(std::move(world)),
      bundle_(resourcesFolder()),
      service_({.widgets = [this](const uikit::Platform& platform) { return bundle_.body(platform); }},
               {.folder = resourcesFolder(), .log = [](std::string_view) {}}) {}

messages::Timeline Extension::timeline(const std::string& kind, foundation::Date now) {
  return ask<messages::Timeline>(
      messages::AskProvider{.operation = messages::ProviderOperation::timeline, .kind = kind}, now);
}

std::string Extension::picture(const std::string& kind, const std::string& family, const foundation::JSON& entry,
                               messages::PictureFormat format, foundation::Date now) {
  return ask<messages::Picture>(
             messages::DrawEntry{.kind = kind, .family = family, .entry = entry, .format = format, .scale = 2}, now)
      .bytes;
}

}  // namespace measuring
