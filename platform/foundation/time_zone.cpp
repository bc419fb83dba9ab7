#include "foundation/time_zone.hpp"

#include <filesystem>
#include <system_error>

#include "foundation/file_manager.hpp"

namespace foundation {
namespace {

constexpr std::string_view nameCharacters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789_+-/";

/// The part of a path behind the tz database's folder.
std::optional<std::string> nameInDatabase(std::string_view path) {
  constexpr std::string_view folder = "zoneinfo/";
  const std::size_t at = path.find(folder);
  if (at == std::string_view::npos) return std::nullopt;
  std::string_view name = path.substr(at + folder.size());
  constexpr std::string_view copy = "posix/";
  if (name.starts_with(copy)) name.remove_prefix(copy.size());
  return std::string(name);
}

}  // namespace

// Abseil would take more than names: paths, "libc:" and "file:" names, "localtime". The zones below "right" count leap
// seconds.
std::optional<TimeZone> TimeZone::named(std::string_view name) {
  if (name.empty() || name.find_first_not_of(nameCharacters) != std::string_view::npos) return std::nullopt;
  if (name.starts_with('/') || name.starts_with("right/") || name == "localtime") return std::nullopt;
  absl::TimeZone zone;
  if (!absl::LoadTimeZone(std::string(name), &zone)) return std::nullopt;
  return TimeZone(zone);
}

std::string systemTimeZoneName(std::string_view tz) {
  if (tz.starts_with(':')) tz.remove_prefix(1);
  if (!tz.empty()) return nameInDatabase(tz).value_or(std::string(tz));

  std::error_code error;
  const std::filesystem::path link = std::filesystem::read_symlink("/etc/localtime", error);
  if (const auto name = error ? std::nullopt : nameInDatabase(link.string())) return *name;

  if (const auto file = readFile("/etc/timezone")) {
    const std::string line = file->substr(0, file->find_first_of("\r\n"));
    if (!line.empty()) return line;
  }
  return "UTC";
}

}  // namespace foundation
