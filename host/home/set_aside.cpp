#include "home/set_aside.hpp"

#include <string>
#include <string_view>

namespace home {

namespace {

constexpr std::string_view attachments[] = {"-journal", "-wal", "-shm"};

std::filesystem::path with(const std::filesystem::path& file, std::string_view ending) {
  return file.string() + std::string(ending);
}

bool isThere(const std::filesystem::path& file) {
  return std::filesystem::exists(std::filesystem::symlink_status(file));
}

bool isFree(const std::filesystem::path& file) {
  for (const auto ending : attachments) {
    if (isThere(with(file, ending))) return false;
  }
  return !isThere(file);
}

}  // namespace

std::filesystem::path setAside(const std::filesystem::path& file) {
  int number = 1;
  const auto name = [&] { return with(file, ".damaged-" + std::to_string(number)); };
  while (!isFree(name())) ++number;
  // The journal goes second: one that is left behind without its file is not used by the next one.
  std::filesystem::rename(file, name());
  for (const auto ending : attachments) {
    if (isThere(with(file, ending))) std::filesystem::rename(with(file, ending), with(name(), ending));
  }
  return name();
}

}  // namespace home
