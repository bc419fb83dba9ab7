#pragma once

#include <string>
#include <string_view>

namespace host {

/// Whether JSON can carry the text.
bool isUTF8(const std::string& text);

/// The text with a blank for each control character, so that nothing that a file holds commands a terminal.
std::string printable(std::string_view text);

}  // namespace host
