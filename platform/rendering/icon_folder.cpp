#include "rendering/icon_folder.hpp"

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <string_view>

#include "foundation/file_descriptor.hpp"
#include "rendering/cairo_handles.hpp"
#include "rendering/trial.hpp"

namespace rendering {
namespace {

using foundation::FileDescriptor;

constexpr std::int64_t largestPNG = 4L * 1024 * 1024;
constexpr std::int64_t largestSVG = 512L * 1024;
constexpr std::size_t mostKept = 64;
constexpr std::size_t largestKept = 32UL * 1024 * 1024;

struct OpenFile {
  FileDescriptor descriptor;
  struct stat status = {};
};

/// Opens a regular file that lies in a folder; neither may be a link. A pipe is not waited for.
std::optional<OpenFile> open(const std::filesystem::path& path) {
  constexpr int careful = O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;
  const FileDescriptor folder(::open(path.parent_path().c_str(), careful | O_DIRECTORY));
  if (!folder.isOpen()) return std::nullopt;
  OpenFile file;
  file.descriptor = FileDescriptor(::openat(folder.get(), path.filename().c_str(), careful));
  if (!file.descriptor.isOpen() || ::fstat(file.descriptor.get(), &file.status) != 0) return std::nullopt;
  if (!S_ISREG(file.status.st_mode)) return std::nullopt;
  return file;
}

/// The bytes of a file whose size is known; nothing if there are others meanwhile.
std::optional<std::string> bytesOf(const OpenFile& file) {
  std::string bytes(static_cast<std::size_t>(file.status.st_size), '\0');
  std::size_t size = 0;
  while (size < bytes.size()) {
    const ssize_t count = ::read(file.descriptor.get(), bytes.data() + size, bytes.size() - size);
    if (count < 0 && errno == EINTR) continue;
    if (count <= 0) return std::nullopt;
    size += static_cast<std::size_t>(count);
  }
  return bytes;
}

/// Whether an SVG file can be drawn, and soon: a few lines of it can ask for any amount of work.
bool isDrawnSoon(const std::string& svg) {
  constexpr std::chrono::milliseconds patience(250);
  return succeedsWithin(patience, [&] {
    constexpr int side = 256;
    const auto picture = pictureOfSVG(svg);
    if (!picture) return false;
    const SurfaceHandle surface(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, side, side));
    picture->draw(CairoHandle(cairo_create(surface.get())).get(), {.frame = {.origin = {}, .size = {side, side}}});
    return true;
  });
}

std::int64_t nanoseconds(const timespec& time) {
  constexpr std::int64_t second = 1'000'000'000;
  return std::int64_t{time.tv_sec} * second + time.tv_nsec;
}

std::unique_ptr<Picture> pictureIn(const OpenFile& file, int density) {
  if (file.status.st_size > (density == 0 ? largestSVG : largestPNG)) return nullptr;
  const auto bytes = bytesOf(file);
  if (!bytes) return nullptr;
  if (density != 0) return pictureOfPNG(*bytes, density);
  return isDrawnSoon(*bytes) ? pictureOfSVG(*bytes) : nullptr;
}

}  // namespace

bool isPictureName(const std::string& name) {
  using namespace std::string_view_literals;
  return !name.empty() && !name.starts_with('.') && name.find_first_of("/\\\0"sv) == std::string::npos &&
         !name.contains("..");
}

std::vector<PictureFile> pictureFiles(const std::string& name, uikit::ColorScheme scheme) {
  constexpr int dense = 3;
  std::vector<PictureFile> files;
  const auto add = [&](const std::string& variant) {
    files.push_back({.name = variant + ".svg", .density = 0});
    files.push_back({.name = variant + "@3x.png", .density = dense});
    files.push_back({.name = variant + ".png", .density = 1});
  };
  if (scheme == uikit::ColorScheme::dark) add(name + "~dark");
  add(name);
  return files;
}

std::shared_ptr<const Picture> IconFolders::find(const std::filesystem::path& folder, const std::string& name,
                                                 uikit::ColorScheme scheme) {
  if (folder.empty() || !isPictureName(name)) return nullptr;
  for (const PictureFile& file : pictureFiles(name, scheme)) {
    if (auto picture = read(folder / file.name, file.density)) return picture;
  }
  return nullptr;
}

std::shared_ptr<const Picture> IconFolders::read(const std::filesystem::path& path, int density) {
  const auto file = open(path);
  if (!file) {
    kept_.erase(path);
    return nullptr;
  }
  const struct stat& status = file->status;
  const Identity identity{.device = status.st_dev,
                          .inode = status.st_ino,
                          .size = status.st_size,
                          .modified = nanoseconds(status.st_mtim),
                          .changed = nanoseconds(status.st_ctim)};
  ++uses_;
  if (const auto known = kept_.find(path); known != kept_.end() && known->second.identity == identity) {
    known->second.lastUse = uses_;
    return known->second.picture;
  }
  std::shared_ptr<const Picture> picture = pictureIn(*file, density);
  kept_[path] = {.identity = identity, .picture = picture, .lastUse = uses_};
  dropOldest();
  return picture;
}

void IconFolders::dropOldest() {
  const auto isTooMuch = [&] {
    std::size_t cost = 0;
    for (const auto& [path, kept] : kept_) cost += kept.picture ? kept.picture->cost() : 0;
    return kept_.size() > mostKept || cost > largestKept;
  };
  while (kept_.size() > 1 && isTooMuch()) {
    kept_.erase(std::ranges::min_element(kept_, {}, [](const auto& entry) { return entry.second.lastUse; }));
  }
}

}  // namespace rendering
