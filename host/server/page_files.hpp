#pragma once

#include <filesystem>
#include <map>
#include <string>

#include "host/server/http_message.hpp"

namespace host {

/// The files of the page, read once from its folder: what is not there when the server starts is not served, and no
/// path of a request ever reaches the file system.
class PageFiles {
 public:
  explicit PageFiles(const std::filesystem::path& folder);

  bool empty() const { return files_.empty(); }
  /// The file of a path, "/" for the page itself; nothing for every other path.
  std::optional<HTTPResponse> find(const std::string& path) const;

 private:
  struct File {
    std::string contentType = {};
    std::string bytes = {};
  };
  std::map<std::string, File, std::less<>> files_ = {};
};

}  // namespace host
