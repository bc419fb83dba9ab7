#include "rendering/font_registry.hpp"

#include <map>

namespace rendering {
namespace {

std::map<std::string, FontFiles, std::less<>>& registry() {
  static std::map<std::string, FontFiles, std::less<>> fonts;
  return fonts;
}

}  // namespace

void registerFont(std::string name, FontFiles files) {
  registry().insert_or_assign(std::move(name), std::move(files));
}

std::optional<FontFiles> registeredFont(std::string_view name) {
  const auto found = registry().find(name);
  if (found == registry().end()) return std::nullopt;
  return found->second;
}

}  // namespace rendering
