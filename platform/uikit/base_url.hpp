#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace uikit {

/// An address that paths are appended to, without the slashes at its end: "https://planner.example/app" of
/// "https://planner.example/app/". It has a scheme (http, https, or one that an application has for itself), a host and
/// maybe a path. Nothing for all else: queries and fragments, blanks, letters that an address has to escape, and
/// schemes by which a link would run a script or open a file.
std::optional<std::string> baseURL(std::string_view text);

}  // namespace uikit
