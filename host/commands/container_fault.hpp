#pragma once

#include <optional>
#include <string>

namespace host {

/// Says that there is no such container, or that none is named.
std::string noContainer(const std::string& path);

/// The same where it is so.
std::optional<std::string> containerFault(const std::string& path);

}  // namespace host
