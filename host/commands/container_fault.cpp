#include "host/commands/container_fault.hpp"

#include <filesystem>

namespace host {

std::string noContainer(const std::string& path) {
  if (path.empty()) return "no container is named: use --container, or set MIRUNE_CONTAINER or HOME";
  return "there is no container at " + path;
}

std::optional<std::string> containerFault(const std::string& path) {
  std::error_code ignored;
  if (!path.empty() && std::filesystem::is_directory(path, ignored)) return std::nullopt;
  return noContainer(path);
}

}  // namespace host
