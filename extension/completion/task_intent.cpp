#include "completion/task_intent.hpp"

#include <tuple>

#include "shared/override_state.hpp"

namespace mirune {
namespace {

OverrideState readState(const std::filesystem::path& file, const std::filesystem::path& container,
                        const uikit::Platform& platform) {
  const auto bytes = foundation::readFile(file);
  if (bytes) {
    if (auto state = decodeOverrideState(*bytes)) return std::move(*state);
  }
  platform.log(foundation::fileURL(container, true) + " groupURLnilllllreaddd");
  return {};
}

}  // namespace

void TaskIntent::perform(const uikit::Platform& platform) const {
  const auto container = platform.files.containerURL();
  if (!container) {
    platform.log("groupURLnilllll");
    return;
  }
  for (const auto fileName : {overrideFile, timelineOverrideFile}) {
    const auto file = *container / fileName;
    OverrideState state = readState(file, *container, platform);
    if (date) {
      state.insert_or_assign(id, *date);
    } else {
      state.erase(id);
    }
    const std::string encoded = encodeOverrideState(state);
    platform.log("finaljsonOK " + encoded);
    // A failed write is nobody's to report: the other file is still written.
    std::ignore = foundation::writeFileAtomically(file, encoded);
  }
}

}  // namespace mirune
