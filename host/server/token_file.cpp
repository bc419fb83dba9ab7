#include "host/server/token_file.hpp"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstring>

#include "foundation/file_descriptor.hpp"
#include "host/server/access.hpp"
#include "host/standard_streams.hpp"

namespace host {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t tokenSize = 32;

std::unexpected<std::string> failed(const fs::path& path) {
  return std::unexpected(path.string() + ": " + std::strerror(errno));
}

/// The token in a file that only this user can read; empty where there is none.
std::string readToken(const fs::path& path) {
  const foundation::FileDescriptor file(::open(path.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
  struct stat status = {};
  if (!file.isOpen() || ::fstat(file.get(), &status) != 0) return {};
  constexpr mode_t others = S_IRWXG | S_IRWXO;
  if (!S_ISREG(status.st_mode) || status.st_uid != ::geteuid() || (status.st_mode & others) != 0) return {};
  std::array<char, tokenSize> bytes = {};
  if (::read(file.get(), bytes.data(), bytes.size()) != static_cast<ssize_t>(bytes.size())) return {};
  const std::string token(bytes.data(), bytes.size());
  return token.find_first_not_of("0123456789abcdef") == std::string::npos ? token : std::string();
}

fs::path tokenFile(const fs::path& folder, int port) {
  return folder / ("token-" + std::to_string(port));
}

}  // namespace

fs::path tokenFolder(const TokenVariables& variables) {
  const fs::path runtime = variables.runtimeDir;
  const fs::path state = variables.stateHome;
  const fs::path home = variables.home;
  if (runtime.is_absolute()) return runtime / "mirune";
  if (state.is_absolute()) return state / "mirune";
  if (home.is_absolute()) return home / ".local" / "state" / "mirune";
  return {};
}

std::expected<std::string, std::string> tokenIn(const fs::path& folder, int port,
                                                const foundation::RandomSource& random) {
  std::error_code error;
  fs::create_directories(folder.parent_path(), error);
  if (::mkdir(folder.c_str(), S_IRWXU) != 0 && errno != EEXIST) return failed(folder);
  const fs::path path = tokenFile(folder, port);
  if (auto known = readToken(path); !known.empty()) return known;

  std::string token = newToken(random);
  ::unlink(path.c_str());
  const foundation::FileDescriptor file(
      ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, S_IRUSR | S_IWUSR));
  if (!file.isOpen()) return failed(path);
  if (const int written = writeAll(file.get(), token + "\n"); written != 0) {
    errno = written;
    return failed(path);
  }
  return token;
}

std::string knownToken(const fs::path& folder, int port) {
  return readToken(tokenFile(folder, port));
}

}  // namespace host
