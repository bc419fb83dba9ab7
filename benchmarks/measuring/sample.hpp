#pragma once

#include <filesystem>

#include "foundation/date.hpp"
#include "messages/world.hpp"

namespace measuring {

/// The morning on which everything is measured: 2026-11-21 at 8:00, in UTC.
foundation::Date morning();

/// A device that has a container, on that morning.
messages::World worldWith(const std::filesystem::path& container);

/// Writes the sample container of that morning. Throws std::runtime_error where that fails.
void writeSampleContainer(const std::filesystem::path& folder);

}  // namespace measuring
