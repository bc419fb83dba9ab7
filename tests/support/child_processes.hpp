#pragma once

#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

namespace support {

/// The processes that a process has started and that have not ended.
inline std::vector<pid_t> childrenOf(pid_t process) {
  std::vector<pid_t> found;
  std::error_code error;
  for (const auto& each : std::filesystem::directory_iterator("/proc", error)) {
    const std::string name = each.path().filename();
    if (name.find_first_not_of("0123456789") != std::string::npos) continue;
    std::ifstream file(each.path() / "stat");
    std::string text;
    if (!std::getline(file, text) || text.rfind(')') == std::string::npos) continue;
    std::istringstream rest(text.substr(text.rfind(')') + 1));
    char state = 0;
    pid_t parent = 0;
    if (rest >> state >> parent && parent == process && state != 'Z') found.push_back(std::stoi(name));
  }
  return found;
}

}  // namespace support
