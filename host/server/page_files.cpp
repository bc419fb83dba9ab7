#include "host/server/page_files.hpp"

#include "foundation/file_manager.hpp"

namespace host {

namespace fs = std::filesystem;

namespace {

const char* contentTypeOf(const fs::path& path) {
  const std::string ending = path.extension();
  if (ending == ".html") return "text/html; charset=utf-8";
  if (ending == ".css") return "text/css; charset=utf-8";
  if (ending == ".js") return "text/javascript; charset=utf-8";
  if (ending == ".svg") return "image/svg+xml";
  if (ending == ".png") return "image/png";
  return nullptr;
}

}  // namespace

PageFiles::PageFiles(const fs::path& folder) {
  std::error_code error;
  for (fs::recursive_directory_iterator each(folder, error), end; !error && each != end; each.increment(error)) {
    const char* const type = contentTypeOf(each->path());
    std::error_code unknown;
    if (type == nullptr || !each->is_regular_file(unknown)) continue;
    if (auto bytes = foundation::readFile(each->path())) {
      files_["/" + fs::relative(each->path(), folder, unknown).generic_string()] = {.contentType = type,
                                                                                    .bytes = std::move(*bytes)};
    }
  }
}

std::optional<HTTPResponse> PageFiles::find(const std::string& path) const {
  const auto file = files_.find(path == "/" ? "/index.html" : path);
  if (file == files_.end()) return std::nullopt;
  return HTTPResponse{.contentType = file->second.contentType, .body = file->second.bytes};
}

}  // namespace host
