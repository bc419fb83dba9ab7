#pragma once

#include <cstdint>
#include <expected>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>

#include "foundation/date.hpp"

namespace foundation {

/// How much a text from readFile may grow, in bytes, before it is moved: enough for decodeJSON.
inline constexpr std::size_t roomBehindFile = 128;

/// Reads the whole of a regular file, or says why not. A file that grows or shrinks meanwhile gives what was read.
std::expected<std::string, std::error_code> readFile(const std::filesystem::path& path);

struct FileStatus {
  Date modified = {};  ///< kept within the years 1 to 9999
  std::int64_t size = 0;
};

/// What a folder says of a file (of a symbolic link, what it leads to), or why it cannot be told.
std::expected<FileStatus, std::error_code> fileStatus(const std::filesystem::path& path);

/// Replaces a file in one step: a temporary file in the same folder is written, synced and moved over it, so that
/// readers see the old bytes or the new ones. The mode of an existing file is kept (a new one gets 0666 less the
/// umask); a symbolic link is replaced itself. On failure the temporary file is removed and the old file stays.
std::expected<void, std::error_code> writeFileAtomically(const std::filesystem::path& path, std::string_view bytes);

/// "file:///a%20b/" for a folder, "file:///a%20b" for a file: the path made absolute and percent-encoded.
std::string fileURL(const std::filesystem::path& path, bool isDirectory);

/// Knows where the container that an app group shares is.
class FileManager {
 public:
  /// A device without a container.
  FileManager() = default;
  /// `container` is the folder of the one app group that this device has. It may be missing.
  explicit FileManager(std::filesystem::path container) : container_(std::move(container)) {}

  /// The folder that the members of an app group share; nothing if it is not there.
  std::optional<std::filesystem::path> containerURL() const;

 private:
  std::filesystem::path container_;
};

}  // namespace foundation
