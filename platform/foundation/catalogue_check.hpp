#pragma once

#include <string_view>

namespace foundation {

/// Whether the tables of a compiled gettext catalogue (.mo) stay within it and its texts end where they say. Boost's
/// reader trusts them.
bool isSoundCatalogue(std::string_view bytes);

}  // namespace foundation
