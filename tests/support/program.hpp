#pragma once

#include <sys/wait.h>

#include <cstdlib>
#include <string>

#include "support/temporary_folder.hpp"

namespace support {

struct ProgramRun {
  int exitCode = 0;
  std::string output = {};
  std::string error = {};
};

/// Runs the program in a folder, in Berlin, with the given variables and no language of its own. Arguments and where
/// the output goes are as for a shell.
inline ProgramRun runIn(const TemporaryFolder& folder, const std::string& variables, const std::string& arguments,
                        const std::string& redirection = ">output") {
  const std::string command = "cd " + folder.path().string() +
                              " && env -u HOME -u XDG_DATA_HOME -u MIRUNE_CONTAINER -u LANGUAGE -u LC_ALL "
                              "-u LC_MESSAGES TZ=Europe/Berlin " +
                              variables + " " MIRUNE_PROGRAM " " + arguments + " 2>error " + redirection;
  const int status = std::system(command.c_str());
  return {.exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : -1,
          .output = readBytes(folder / "output"),
          .error = readBytes(folder / "error")};
}

#ifdef MIRUNE_EXTENSION
/// Runs it with its own extension, on the container "container" of the folder, on the morning of 2026-11-21.
inline ProgramRun runMirune(const TemporaryFolder& folder, const std::string& arguments) {
  const std::string container = (folder / "container").string();
  return runIn(folder, "LANG=en_US.UTF-8 MIRUNE_EXTENSION=" MIRUNE_EXTENSION " MIRUNE_CONTAINER=" + container,
               arguments + " --now 2026-11-21T08:00:00Z");
}
#endif

}  // namespace support
