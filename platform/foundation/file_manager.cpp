#include "foundation/file_manager.hpp"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <cstdio>

#include "foundation/file_descriptor.hpp"

namespace foundation {
namespace {

constexpr mode_t newFileMode = 0666;
constexpr int nameAttempts = 100;

std::unexpected<std::error_code> lastError() {
  return std::unexpected(std::error_code(errno, std::generic_category()));
}

template <class Call>
auto retried(Call call) {
  auto result = call();
  while (result < 0 && errno == EINTR) result = call();
  return result;
}

/// A file that is being written next to the one it will replace; removed unless it was moved there.
class TemporaryFile {
 public:
  TemporaryFile(const std::filesystem::path& target, mode_t mode) {
    static std::atomic<unsigned> counter = 0;
    const std::string start = ".mirune-" + std::to_string(::getpid()) + "-";
    for (int attempt = 0; attempt < nameAttempts; ++attempt) {
      path_ = target.parent_path() / (start + std::to_string(counter++));
      file_ = FileDescriptor(
          retried([&] { return ::open(path_.c_str(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC | O_NOFOLLOW, mode); }));
      if (file_.isOpen() || errno != EEXIST) return;
    }
  }
  ~TemporaryFile() {
    if (file_.isOpen() && !moved_) ::unlink(path_.c_str());
  }
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;

  bool isOpen() const { return file_.isOpen(); }

  bool write(std::string_view bytes) {
    while (!bytes.empty()) {
      const ssize_t written = retried([&] { return ::write(file_.get(), bytes.data(), bytes.size()); });
      if (written < 0) return false;
      bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    // Some file systems cannot sync a file (EINVAL); the bytes are then as safe as they can be.
    return retried([&] { return ::fsync(file_.get()); }) == 0 || errno == EINVAL;
  }

  bool setMode(mode_t mode) { return ::fchmod(file_.get(), mode) == 0; }

  bool moveTo(const std::filesystem::path& target) {
    moved_ = std::rename(path_.c_str(), target.c_str()) == 0;
    return moved_;
  }

 private:
  std::filesystem::path path_;
  FileDescriptor file_;
  bool moved_ = false;
};

/// The permissions of the regular file at that place, if there is one.
std::optional<mode_t> existingMode(const std::filesystem::path& path) {
  struct stat status = {};
  if (::lstat(path.c_str(), &status) != 0 || !S_ISREG(status.st_mode)) return std::nullopt;
  return status.st_mode & 07777;
}

bool isPlainInURL(char byte) {
  const bool isAlphanumeric =
      (byte >= '0' && byte <= '9') || (byte >= 'A' && byte <= 'Z') || (byte >= 'a' && byte <= 'z');
  return isAlphanumeric || std::string_view("-._~!$&'()*+,=:@/").contains(byte);
}

}  // namespace

std::expected<std::string, std::error_code> readFile(const std::filesystem::path& path) {
  // Without O_NONBLOCK, opening a named pipe would wait for somebody to write to it.
  const FileDescriptor file(
      retried([&] { return ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY); }));
  if (!file.isOpen()) return lastError();
  struct stat status = {};
  if (::fstat(file.get(), &status) != 0) return lastError();
  if (S_ISDIR(status.st_mode)) return std::unexpected(std::make_error_code(std::errc::is_a_directory));
  if (!S_ISREG(status.st_mode)) return std::unexpected(std::make_error_code(std::errc::invalid_argument));

  constexpr std::size_t smallestRead = 4096;
  // More than expected, so that the end of the file shows before the text has to grow.
  std::string bytes(static_cast<std::size_t>(status.st_size) + roomBehindFile, '\0');
  std::size_t size = 0;
  while (true) {
    if (size == bytes.size()) bytes.resize(size + std::max(size, smallestRead));
    const ssize_t count = retried([&] { return ::read(file.get(), bytes.data() + size, bytes.size() - size); });
    if (count < 0) return lastError();
    if (count == 0) break;
    size += static_cast<std::size_t>(count);
  }
  bytes.resize(size);
  return bytes;
}

std::expected<FileStatus, std::error_code> fileStatus(const std::filesystem::path& path) {
  struct stat status = {};
  if (::stat(path.c_str(), &status) != 0) return lastError();
  using namespace std::chrono;
  constexpr sys_seconds earliest = sys_days(year(1) / January / 1);
  constexpr sys_seconds latest = sys_days(year(9999) / December / 31);
  const auto second = std::clamp(sys_seconds(seconds(status.st_mtim.tv_sec)), earliest, latest);
  return FileStatus{.modified = second + duration_cast<milliseconds>(nanoseconds(status.st_mtim.tv_nsec)),
                    .size = status.st_size};
}

std::expected<void, std::error_code> writeFileAtomically(const std::filesystem::path& path, std::string_view bytes) {
  const std::optional<mode_t> mode = existingMode(path);
  TemporaryFile file(path, mode.value_or(newFileMode));
  if (!file.isOpen()) return lastError();
  if (!file.write(bytes)) return lastError();
  if (mode && !file.setMode(*mode)) return lastError();
  if (!file.moveTo(path)) return lastError();
  return {};
}

std::string fileURL(const std::filesystem::path& path, bool isDirectory) {
  constexpr std::string_view digits = "0123456789ABCDEF";
  std::string url = "file://";
  for (const char byte : std::filesystem::absolute(path).string()) {
    if (isPlainInURL(byte)) {
      url += byte;
      continue;
    }
    const auto value = static_cast<unsigned char>(byte);
    url += {'%', digits[value >> 4], digits[value & 15]};
  }
  if (isDirectory && !url.ends_with('/')) url += '/';
  return url;
}

std::optional<std::filesystem::path> FileManager::containerURL() const {
  std::error_code error;
  if (container_.empty() || !std::filesystem::is_directory(container_, error)) return std::nullopt;
  return container_;
}

}  // namespace foundation
