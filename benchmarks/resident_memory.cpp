// How much memory the extension's process has after so many pictures, at rising moments, asked for as the host asks.
// Usage: resident_memory KIND FAMILY COUNT…    prints a line "COUNT KIB" for each, which rise

#include <unistd.h>

#include <cstdlib>
#include <fstream>
#include <iostream>
#include <span>
#include <stdexcept>

#include "host/extension_process.hpp"
#include "host/states/scratch_folder.hpp"
#include "measuring/paths.hpp"
#include "measuring/sample.hpp"

namespace {

/// KiB of the one child of this process.
long residentOfChild() {
  pid_t child = 0;
  std::ifstream("/proc/self/task/" + std::to_string(::getpid()) + "/children") >> child;
  std::ifstream status("/proc/" + std::to_string(child) + "/status");
  for (std::string line; std::getline(status, line);) {
    if (line.starts_with("VmRSS:")) return std::atol(line.c_str() + std::string_view("VmRSS:").size());
  }
  throw std::runtime_error("the extension does not run");
}

/// Draws the entries of a kind in turn.
class Painter {
 public:
  Painter(std::string kind, std::string family) : kind_(std::move(kind)), family_(std::move(family)) {
    measuring::writeSampleContainer(folder_.path());
    timeline_ = ask<messages::Timeline>(messages::AskProvider{.kind = kind_}, measuring::morning());
  }

  void draw(int number) {
    const auto index = static_cast<std::size_t>(number) % timeline_.entries.size();
    ask<messages::Picture>(
        messages::DrawEntry{.kind = kind_, .family = family_, .entry = timeline_.wholeEntry(index), .scale = 2},
        measuring::morning() + std::chrono::minutes(number));
  }

 private:
  template <class Reply>
  Reply ask(messages::Request request, foundation::Date now) {
    messages::World world = measuring::worldWith(folder_.path());
    world.now = now;
    auto reply = process_.ask({.world = std::move(world), .request = std::move(request)});
    if (!reply) throw std::runtime_error(reply.error());
    if (const auto* failure = std::get_if<messages::Failure>(&*reply)) throw std::runtime_error(failure->message);
    return std::get<Reply>(std::move(*reply));
  }

  host::ScratchFolder folder_;
  host::ExtensionProcess process_{{.program = measuring::extensionProgram()}};
  std::string kind_;
  std::string family_;
  messages::Timeline timeline_;
};

}  // namespace

int main(int count, char** arguments) {
  const std::span words(arguments, static_cast<std::size_t>(count));
  if (words.size() < 4) {
    std::cerr << "usage: resident_memory KIND FAMILY COUNT…\n";
    return 2;
  }
  Painter painter(words[1], words[2]);
  int drawn = 0;
  for (const char* word : words.subspan(3)) {
    for (const int wanted = std::atoi(word); drawn < wanted; ++drawn) painter.draw(drawn);
    std::cout << drawn << ' ' << residentOfChild() << std::endl;
  }
}
