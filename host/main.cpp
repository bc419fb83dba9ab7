#include <unistd.h>

#include <cstring>
#include <string>

#include "foundation/icu_tables.hpp"
#include "host/commands/command_line.hpp"
#include "host/standard_streams.hpp"

int main(int argc, char** argv) {
  foundation::openICUTables();
  host::reserveStandardDescriptors();
  const auto result = host::runCommandLine({argv + (argc > 0), argv + argc}, host::currentSurroundings());
  host::writeAll(STDERR_FILENO, result.error);
  const int error = host::writeAll(STDOUT_FILENO, result.output);
  if (error == 0) return result.exitCode;
  // Whoever read along and went away (mirune gallery | head -1) need not be told.
  if (error != EPIPE) {
    host::writeAll(STDERR_FILENO, std::string("mirune: standard output: ") + std::strerror(error) + "\n");
  }
  return 1;
}
