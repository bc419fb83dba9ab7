#pragma once

#include <optional>
#include <string>

namespace host {

/// Opens the address with xdg-open and waits until that has ended, which may be when the browser does. One line where
/// it failed. Ctrl+C in the terminal of this process does not reach the browser.
std::optional<std::string> openInBrowser(std::string address);

}  // namespace host
