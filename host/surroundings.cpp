#include "host/surroundings.hpp"

#include <chrono>
#include <cstdlib>

#include "foundation/locale.hpp"
#include "foundation/time_zone.hpp"
#include "host/app_group.hpp"

namespace host {

namespace {

std::string_view variable(const char* name) {
  const char* value = std::getenv(name);
  return value ? value : std::string_view();
}

std::filesystem::path variableOr(const char* name, const std::filesystem::path& otherwise) {
  const auto value = variable(name);
  return value.empty() ? otherwise : std::filesystem::path(value);
}

}  // namespace

Surroundings currentSurroundings() {
  std::error_code ignored;
  // The build folder has the layout of an installed program: PREFIX/bin, PREFIX/libexec, PREFIX/share.
  const auto prefix = std::filesystem::read_symlink("/proc/self/exe", ignored).parent_path().parent_path();
  const foundation::LocaleVariables localeVariables = {.language = variable("LANGUAGE"),
                                                       .lcAll = variable("LC_ALL"),
                                                       .lcMessages = variable("LC_MESSAGES"),
                                                       .lang = variable("LANG")};
  return {
      .now = std::chrono::floor<std::chrono::seconds>(std::chrono::system_clock::now()),
      .timeZone = foundation::systemTimeZoneName(variable("TZ")),
      .locale = foundation::systemLocale(localeVariables).identifier(),
      .container = defaultContainer(
          {.container = variable("MIRUNE_CONTAINER"), .dataHome = variable("XDG_DATA_HOME"), .home = variable("HOME")}),
      .extension = variableOr("MIRUNE_EXTENSION", prefix / "libexec" / "mirune-extension"),
      .resources = variableOr("MIRUNE_RESOURCES", prefix / "share" / "mirune")};
}

std::filesystem::path defaultContainer(const ContainerVariables& variables) {
  const auto below = [](const std::filesystem::path& data) { return data / "mirune" / appGroup; };
  const std::filesystem::path dataHome = variables.dataHome;
  if (!variables.container.empty()) return variables.container;
  if (dataHome.is_absolute()) return below(dataHome);
  if (!variables.home.empty()) return below(std::filesystem::path(variables.home) / ".local" / "share");
  return {};
}

}  // namespace host
