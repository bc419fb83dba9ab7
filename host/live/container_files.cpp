#include "host/live/container_files.hpp"

#include <unistd.h>

#include <functional>

#include "foundation/file_manager.hpp"
#include "foundation/json.hpp"

namespace host {

namespace fs = std::filesystem;

namespace {

constexpr std::chrono::seconds justNow(3);

void mix(std::size_t& seed, std::size_t value) {
  seed = seed * 1'000'003 + value;
}

/// Calls `use` with each regular file of a folder.
template <class Use>
void forEachFile(const fs::path& folder, Use use) {
  std::error_code error;
  for (fs::directory_iterator each(folder, error), end; !error && each != end; each.increment(error)) {
    std::error_code unknown;
    if (each->is_regular_file(unknown) && !unknown) use(*each);
  }
}

std::size_t lookOf(const fs::path& folder) {
  std::size_t look = 0;
  forEachFile(folder, [&](const fs::directory_entry& file) {
    std::error_code unknown;
    std::size_t each = std::hash<std::string>()(file.path().string());
    mix(each, static_cast<std::size_t>(file.file_size(unknown)));
    mix(each, static_cast<std::size_t>(file.last_write_time(unknown).time_since_epoch().count()));
    look += each;  // whatever the order of the folder
  });
  return look;
}

}  // namespace

ContainerFiles ContainerFiles::of(const fs::path& container, const ContainerFiles& before) {
  ContainerFiles result;
  result.icons_ = lookOf(container / "icons");
  result.settings_ = lookOf(container / "Library" / "Preferences");
  forEachFile(container, [&](const fs::directory_entry& entry) {
    if (entry.path().extension() != ".json") return;
    std::error_code unknown;
    const std::string name = entry.path().filename().string();
    File file{.size = static_cast<std::int64_t>(entry.file_size(unknown)), .modified = entry.last_write_time(unknown)};
    const auto known = before.files_.find(name);
    const bool isKnown = known != before.files_.end() && known->second.size == file.size &&
                         known->second.modified == file.modified && known->second.content && !before.isHalfWritten_;
    if (isKnown && ::access(entry.path().c_str(), R_OK) == 0) {
      file.content = known->second.content;
    } else if (const auto bytes = foundation::readFile(entry.path())) {
      file.content = std::hash<std::string>()(*bytes);
      // A time to come is no sign of a writer: whoever waited for it might wait for ever.
      const auto age = fs::file_time_type::clock::now() - file.modified;
      const bool isFresh = age < justNow && age > -justNow;
      if (isFresh && !foundation::JSON::accept(*bytes)) result.isHalfWritten_ = true;
    }
    result.files_[name] = file;
  });
  return result;
}

bool ContainerFiles::differsFrom(const ContainerFiles& before) const {
  if (files_.size() != before.files_.size()) return true;
  for (const auto& [name, file] : files_) {
    const auto other = before.files_.find(name);
    if (other == before.files_.end() || other->second.content != file.content) return true;
  }
  return false;
}

}  // namespace host
