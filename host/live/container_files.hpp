#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <optional>
#include <string>

namespace host {

/// What is in a container, as far as it takes to tell whether it has changed.
///
/// The planner's files are the JSON files of the folder itself. Of settings and icons it only matters that pictures may
/// look different: each are one number.
class ContainerFiles {
 public:
  /// Reads the folders; files whose time and size are those of `before` are not read again.
  static ContainerFiles of(const std::filesystem::path& container, const ContainerFiles& before);

  /// Whether a planner's file is other than it was, by its content.
  bool differsFrom(const ContainerFiles& before) const;
  bool looksDifferentFrom(const ContainerFiles& before) const {
    return icons_ != before.icons_ || settings_ != before.settings_;
  }
  /// Stands for the icons that there are: another number where one has come, gone or changed.
  std::size_t icons() const { return icons_; }
  /// Whether a file was written just now and is no JSON: its writer may not be done.
  bool isHalfWritten() const { return isHalfWritten_; }

 private:
  struct File {
    std::int64_t size = 0;
    std::filesystem::file_time_type modified = {};
    std::optional<std::size_t> content = std::nullopt;  ///< a hash; absent where it cannot be read
  };

  std::map<std::string, File> files_ = {};
  std::size_t icons_ = 0;
  std::size_t settings_ = 0;
  bool isHalfWritten_ = false;
};

}  // namespace host
