#include "measuring/sample.hpp"

#include <stdexcept>

#include "foundation/iso8601.hpp"
#include "host/demo/demo_container.hpp"
#include "measuring/paths.hpp"

namespace measuring {

foundation::Date morning() {
  return foundation::parseMoment("2026-11-21T08:00:00Z").value();
}

messages::World worldWith(const std::filesystem::path& container) {
  return {.now = morning(), .container = container.string()};
}

void writeSampleContainer(const std::filesystem::path& folder) {
  const host::DemoContainer sample{.folder = folder, .templates = resourcesFolder() / "demo", .now = morning()};
  if (const auto written = sample.write(); !written) throw std::runtime_error(written.error());
}

}  // namespace measuring
