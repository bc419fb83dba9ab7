#pragma once

#include <filesystem>

#include "foundation/json.hpp"
#include "foundation/locale.hpp"

namespace host {

/// The texts of the page by their English keys, as far as FOLDER/words translates them for the locale; {} for English.
foundation::JSON pageWords(const std::filesystem::path& folder, const foundation::Locale& locale);

}  // namespace host
