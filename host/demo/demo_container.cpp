#include "host/demo/demo_container.hpp"

#include <algorithm>
#include <array>
#include <map>

#include "foundation/calendar.hpp"
#include "foundation/file_manager.hpp"
#include "foundation/user_defaults.hpp"
#include "host/app_group.hpp"
#include "host/demo/demo_template.hpp"

namespace host {

namespace {

namespace fs = std::filesystem;
using Result = std::expected<void, std::string>;

constexpr const char* markerName = ".mirune-demo";
constexpr const char* unfinished = "unfinished";
/// What the widgets themselves record when an item is ticked off.
constexpr std::array overrideNames = {"interactive-widgets-state.json", "interactive-widgets-state2.json"};
/// Where the planner puts the pictures of its own moods.
constexpr const char* iconFolder = "icons";
constexpr const char* themeKey = "app_theme_mode";

/// Texts by file name, below the container.
using Files = std::map<std::string, std::string>;

std::unexpected<std::string> problem(const fs::path& path, const std::string& reason) {
  return std::unexpected(path.string() + ": " + reason);
}

/// A file that cannot be looked at counts as there.
bool isThere(const fs::path& path) {
  std::error_code error;
  return fs::symlink_status(path, error).type() != fs::file_type::not_found;
}

/// The files of a folder with that extension.
std::expected<Files, std::string> readFiles(const fs::path& folder, const char* extension) {
  Files files;
  std::error_code error;
  for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error)) {
    const auto& path = entry->path();
    if (path.extension() != extension) continue;
    auto text = foundation::readFile(path);
    if (!text) return problem(path, text.error().message());
    files.emplace(path.filename().string(), std::move(*text));
  }
  if (error) return problem(folder, error.message());
  if (files.empty()) return problem(folder, "there are no demo files");
  return files;
}

Result writeFile(const fs::path& path, const std::string& text) {
  std::error_code error;
  fs::create_directories(path.parent_path(), error);
  if (error) return problem(path.parent_path(), error.message());
  const auto written = foundation::writeFileAtomically(path, text);
  if (!written) return problem(path, written.error().message());
  return {};
}

/// Whether the folder holds a planner's files.
bool isForeign(const fs::path& folder, const Files& files) {
  const auto isInFolder = [&](const std::string& name) { return isThere(folder / name); };
  if (isInFolder(markerName)) return false;
  return std::ranges::any_of(files, [&](const auto& file) { return isInFolder(file.first); }) ||
         std::ranges::any_of(overrideNames, isInFolder);
}

Result setTheme(const fs::path& folder, int theme) {
  const foundation::FileManager files(folder);
  const auto open = [&] { return foundation::UserDefaults::open(files, appGroup); };
  auto defaults = open();
  if (!defaults) return problem(folder, "the settings cannot be read");
  defaults->set(themeKey, std::int64_t{theme});
  const auto stored = open();
  if (!stored || stored->integer(themeKey) != theme) return problem(folder, "the settings cannot be written");
  return {};
}

Result fill(const DemoContainer& demo, const Files& files) {
  // The marker comes first, so that a demo that was cut short is still known as one.
  const auto marker = demo.folder / markerName;
  if (const auto result = writeFile(marker, unfinished); !result) return result;
  for (const auto* name : overrideNames) {
    std::error_code error;
    fs::remove(demo.folder / name, error);
    if (error) return problem(demo.folder / name, error.message());
  }
  for (const auto& [name, text] : files) {
    if (const auto result = writeFile(demo.folder / name, text); !result) return result;
  }
  if (demo.theme) {
    if (const auto result = setTheme(demo.folder, *demo.theme); !result) return result;
  }
  return writeFile(marker, foundation::dayKey(demo.now, demo.timeZone));
}

std::expected<Files, std::string> expandedFiles(const DemoContainer& demo) {
  auto files = readFiles(demo.templates, ".json");
  if (!files) return files;
  for (auto& [name, text] : *files) {
    auto expanded = expandTemplate(text, demo.now, demo.timeZone);
    if (!expanded) return problem(demo.templates / name, "unknown placeholder " + expanded.error());
    text = std::move(*expanded);
  }
  if (!isThere(demo.templates / iconFolder)) return files;
  const auto icons = readFiles(demo.templates / iconFolder, ".svg");
  if (!icons) return icons;
  for (const auto& [name, text] : *icons) files->emplace((fs::path(iconFolder) / name).string(), text);
  return files;
}

}  // namespace

std::expected<void, std::string> DemoContainer::write() const {
  const auto files = expandedFiles(*this);
  if (!files) return std::unexpected(files.error());
  if (isForeign(folder, *files)) return problem(folder, "holds files of a planner, which a demo does not overwrite");
  return fill(*this, *files);
}

std::expected<void, std::string> DemoContainer::refresh() const {
  const auto files = expandedFiles(*this);
  if (!files) return std::unexpected(files.error());
  const auto day = foundation::readFile(folder / markerName);
  const bool isOfToday = day && *day == foundation::dayKey(now, timeZone);
  if (isOfToday || isForeign(folder, *files)) return {};
  return fill(*this, *files);
}

}  // namespace host
