#pragma once

#include <expected>
#include <filesystem>

#include "messages/replies.hpp"
#include "messages/world.hpp"
#include "uikit/platform.hpp"

namespace widgetkit {

/// What does not change from request to request.
struct ExtensionResources {
  std::filesystem::path folder = {};  ///< fonts, images, symbols and words of the extension
  foundation::DebugLog log = foundation::standardOutputLog();
};

/// The platform as a request's world describes it; a usage Failure that names what is wrong and what would be right.
std::expected<uikit::Platform, messages::Failure> platformFor(const messages::World& world,
                                                              const ExtensionResources& resources);

}  // namespace widgetkit
