#pragma once

#include <string>
#include <vector>

#include "host/surroundings.hpp"

namespace host {

/// What one run of the program leaves behind.
struct CommandLineResult {
  int exitCode = 0;         ///< 0 done, 1 failed, 2 usage
  std::string output = {};  ///< for standard output
  std::string error = {};   ///< for standard error: one line, or nothing
};

/// Runs the command that the arguments name (those after the program's name). Without any, or with --help, the output
/// is the help.
CommandLineResult runCommandLine(std::vector<std::string> arguments, const Surroundings& surroundings);

}  // namespace host
