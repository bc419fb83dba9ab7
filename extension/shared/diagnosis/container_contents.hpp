#pragma once

#include <filesystem>
#include <optional>

#include "foundation/user_defaults.hpp"
#include "messages/replies.hpp"
#include "shared/daily_mood.hpp"
#include "shared/diagnosis/problem_lines.hpp"
#include "shared/item_files.hpp"
#include "shared/override_state.hpp"

namespace mirune {

/// What the files of a container hold, as far as it is known: a missing file is an empty one, of a file that does not
/// decode nothing is known.
struct ContainerContents {
  std::optional<ItemFile> tasks = std::nullopt;
  std::optional<ItemFile> pendingTasks = std::nullopt;
  std::optional<ItemFile> habits = std::nullopt;
  std::optional<ItemFile> events = std::nullopt;
  std::optional<MoodFile> moods = std::nullopt;
  std::optional<OverrideState> overrides = std::nullopt;
  std::optional<OverrideState> timelineOverrides = std::nullopt;
  std::optional<foundation::UserDefaults> settings = std::nullopt;
};

/// The file's bytes, nothing where it is missing, into its field. The answer says why they do not fit.
using DecodeFile = std::optional<std::string> (*)(const std::optional<std::string>& bytes,
                                                  const uikit::Platform& platform, ContainerContents& contents);

/// A file of JSON.
template <auto field>
std::optional<std::string> decodeJSONFile(const std::optional<std::string>& bytes, const uikit::Platform&,
                                          ContainerContents& contents) {
  auto& content = (contents.*field).emplace();
  if (!bytes) return std::nullopt;
  auto decoded = foundation::decodeJSON<std::remove_reference_t<decltype(content)>>(*bytes);
  if (decoded) {
    content = std::move(*decoded);
    return std::nullopt;
  }
  (contents.*field).reset();
  return lineOf(decoded.error());
}

/// The shared settings, which are opened as widgets open them.
std::optional<std::string> openSettings(const std::optional<std::string>& bytes, const uikit::Platform& platform,
                                        ContainerContents& contents);

/// Reads and decodes the file of that name. What it holds goes to `contents`, what is to be said of it as a whole is
/// the answer, without a consequence.
messages::FileDiagnosis readSharedFile(const uikit::Platform& platform, const std::filesystem::path& container,
                                       std::string_view name, DecodeFile decode, ContainerContents& contents);

}  // namespace mirune
