#pragma once

#include <string_view>

namespace host {

/// Makes sure that descriptors 0 to 2 are taken, so that no file or socket of ours gets their numbers. One that the
/// caller has closed is opened so that using it still fails.
void reserveStandardDescriptors();

/// Writes the text to a descriptor. 0, or the error number of what went wrong.
int writeAll(int descriptor, std::string_view text);

}  // namespace host
