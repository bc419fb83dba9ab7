#include "host/commands/picture_file.hpp"

#include <algorithm>
#include <array>
#include <filesystem>

#include "foundation/file_manager.hpp"
#include "foundation/strings.hpp"

namespace host {

namespace {

using messages::PictureFormat;

struct Ending {
  PictureFormat format = PictureFormat::png;
  const char* text = "";
};

constexpr std::array endings{Ending{PictureFormat::png, ".png"}, Ending{PictureFormat::svg, ".svg"},
                             Ending{PictureFormat::pdf, ".pdf"}, Ending{PictureFormat::text, ".txt"},
                             Ending{PictureFormat::json, ".json"}};

std::string textOf(PictureFormat format) {
  return std::ranges::find(endings, format, &Ending::format)->text;
}

/// ".png, .svg or .pdf".
std::string listed(std::span<const PictureFormat> formats) {
  std::string list;
  for (std::size_t i = 0; i < formats.size(); ++i) {
    if (i > 0) list += i + 1 == formats.size() ? " or " : ", ";
    list += textOf(formats[i]);
  }
  return list;
}

}  // namespace

std::expected<PictureFormat, messages::Failure> pictureFormat(const std::string& file,
                                                              std::span<const PictureFormat> offered) {
  const std::string ending = foundation::lowercased(std::filesystem::path(file).extension().string());
  const auto found = std::ranges::find(offered, ending, textOf);
  if (found != offered.end()) return *found;
  return usage("-o: '" + file + "' does not end in " + listed(offered));
}

std::expected<double, messages::Failure> pictureScale(double pixelsPerPoint) {
  if (pixelsPerPoint >= 0.1 && pixelsPerPoint <= 10) return pixelsPerPoint;
  return usage("--scale: must be from 0.1 to 10");
}

Outcome savePicture(const std::string& file, const messages::Picture& picture) {
  const auto written = foundation::writeFileAtomically(file, picture.bytes);
  if (!written) return failed(file + ": " + written.error().message());
  return "";
}

}  // namespace host
