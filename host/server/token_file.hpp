#pragma once

#include <expected>
#include <filesystem>
#include <string>
#include <string_view>

#include "foundation/uuid.hpp"

namespace host {

/// The variables of the environment that choose where the token lies; an empty text counts as not set.
struct TokenVariables {
  std::string_view runtimeDir = {};  ///< XDG_RUNTIME_DIR
  std::string_view stateHome = {};   ///< XDG_STATE_HOME
  std::string_view home = {};        ///< HOME
};

/// mirune/ in XDG_RUNTIME_DIR, else in XDG_STATE_HOME, else in HOME/.local/state; relative values count as not set.
/// Empty where none is.
std::filesystem::path tokenFolder(const TokenVariables& variables);

/// The token of the server on a port: read where the file is there, belongs to this user and is nobody else's to read,
/// made afresh otherwise. The folder is made with 0700, the file with 0600. The error is one line.
std::expected<std::string, std::string> tokenIn(const std::filesystem::path& folder, int port,
                                                const foundation::RandomSource& random);

/// The token that tokenIn() has left for the port; empty where there is none, or it is not this user's alone.
std::string knownToken(const std::filesystem::path& folder, int port);

}  // namespace host
