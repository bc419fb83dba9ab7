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

/// Runs the program with its own extension, on the container "container" of the folder, in Berlin on the morning of
/// 2026-11-21. Arguments are as for a shell.
inline ProgramRun runMirune(const TemporaryFolder& folder, const std::string& arguments) {
  const std::string path = folder.path().string();
  const std::string command = "cd " + path +
                              " && env -u HOME -u XDG_DATA_HOME -u LANGUAGE -u LC_ALL -u LC_MESSAGES LANG=en_US.UTF-8 "
                              "TZ=Europe/Berlin MIRUNE_CONTAINER=" +
                              path + "/container MIRUNE_EXTENSION=" MIRUNE_EXTENSION " " MIRUNE_PROGRAM " " +
                              arguments + " --now 2026-11-21T08:00:00Z >output 2>error";
  const int status = std::system(command.c_str());
  return {.exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : -1,
          .output = readBytes(folder / "output"),
          .error = readBytes(folder / "error")};
}

}  // namespace support
