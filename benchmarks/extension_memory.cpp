// How large an extension grows that is asked for the timelines of all kinds: extension_memory FOLDER
// The folder's files are written by another program, for what a process holds before it starts a child counts as the
// child's.

#include <sys/resource.h>

#include <cstdio>
#include <filesystem>

#include "host/extension_process.hpp"
#include "planner_files.hpp"

namespace {

constexpr double mebibyte = 1 << 20;

double sizeOf(const std::filesystem::path& folder) {
  double size = 0;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    if (entry.is_regular_file()) size += static_cast<double>(entry.file_size());
  }
  return size;
}

/// Whether all timelines came.
bool askForAll(host::ExtensionProcess& extension, const messages::World& world) {
  const auto described = extension.ask({.world = world, .request = messages::DescribeCatalogue{}});
  const auto* catalogue = described ? std::get_if<messages::Catalogue>(&*described) : nullptr;
  if (catalogue == nullptr) return false;
  for (const auto& widget : catalogue->widgets) {
    const auto reply = extension.ask({.world = world, .request = messages::AskProvider{.kind = widget.kind}});
    if (!reply || !std::holds_alternative<messages::Timeline>(*reply)) return false;
  }
  return true;
}

}  // namespace

int main(int count, char** arguments) {
  if (count != 2) {
    std::fputs("Usage: extension_memory FOLDER\n", stderr);
    return 2;
  }
  const double size = sizeOf(arguments[1]);
  host::ExtensionProcess extension({.program = MIRUNE_EXTENSION});
  const bool isAnswered = askForAll(extension, {.now = benchmarks::readingMoment(), .container = arguments[1]});
  extension.stop();
  if (!isAnswered) {
    std::fputs("the extension did not answer\n", stderr);
    return 1;
  }
  rusage used = {};
  getrusage(RUSAGE_CHILDREN, &used);
  const double peak = static_cast<double>(used.ru_maxrss) * 1024;
  std::printf("files %.1f MiB, peak of the extension %.1f MiB: %.2f times the files\n", size / mebibyte,
              peak / mebibyte, peak / size);
}
