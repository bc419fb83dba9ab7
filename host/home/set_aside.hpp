#pragma once

#include <filesystem>

namespace home {

/// Renames a damaged database file, and the journal that belongs to it, to the first free FILE.damaged-N with N from 1,
/// and returns that name. Throws std::filesystem::filesystem_error.
std::filesystem::path setAside(const std::filesystem::path& file);

}  // namespace home
