#pragma once

#include <filesystem>
#include <istream>
#include <optional>
#include <string>

#include <sys/types.h>

namespace host {

/// An address that lets in a browser, from the home screen that this user already serves on the port; `tokens` is the
/// folder of its token. Nothing where nobody serves there, somebody else does, or no answer comes within five seconds.
std::optional<std::string> addressOfRunningServer(const std::filesystem::path& tokens, int port);

/// Whether the user listens on the port of 127.0.0.1, by a table in the form of /proc/net/tcp. Whoever else does must
/// not be shown the token.
bool isListening(std::istream& table, int port, uid_t user);

}  // namespace host
