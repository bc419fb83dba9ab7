#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "rendering/picture.hpp"

namespace rendering {

/// Whether a text names a picture and is no path: not empty, no separator, no "..", no leading dot, no zero byte.
bool isPictureName(const std::string& name);

struct PictureFile {
  std::string name = {};
  int density = 0;  ///< pixels to the point; 0 for outlines
};

/// The files that may hold a picture of that name, the best first: NAME.svg, NAME@3x.png, NAME.png, and in the dark
/// scheme before all of them NAME~dark.svg and so on.
std::vector<PictureFile> pictureFiles(const std::string& name, uikit::ColorScheme scheme);

/// Pictures of folders that others write to while the extension runs, and that may hold anything.
///
/// Only regular files that lie in the folder itself are read: no symbolic links (the folder is none, either), no pipes,
/// nothing above or below. A PNG may have 4 MiB and 2,048 pixels a side. An SVG may have 512 KiB and take a quarter of
/// a second of processor time to be read and drawn, which is tried out first. What is too large, too slow, broken or
/// unreadable is as if it were missing.
/// A file is read again when it is replaced or changed. The 64 pictures that were asked for last are kept, fewer if
/// they take more than 32 MiB.
class IconFolders {
 public:
  /// The picture of a name, null if there is none.
  std::shared_ptr<const Picture> find(const std::filesystem::path& folder, const std::string& name,
                                      uikit::ColorScheme scheme);

 private:
  /// Tells one state of a file from another.
  struct Identity {
    std::uint64_t device = 0;
    std::uint64_t inode = 0;
    std::int64_t size = 0;
    std::int64_t modified = 0;  ///< in nanoseconds
    std::int64_t changed = 0;

    friend bool operator==(const Identity&, const Identity&) = default;
  };
  struct Kept {
    Identity identity = {};
    std::shared_ptr<const Picture> picture = nullptr;  ///< null where the file holds none
    std::uint64_t lastUse = 0;
  };

  std::shared_ptr<const Picture> read(const std::filesystem::path& path, int density);
  void dropOldest();

  std::map<std::filesystem::path, Kept> kept_;
  std::uint64_t uses_ = 0;
};

}  // namespace rendering
