#pragma once

#include <gtest/gtest.h>
#include <sys/wait.h>

#include <chrono>
#include <cstdlib>
#include <nlohmann/json.hpp>
#include <sstream>
#include <string>
#include <vector>

#include "support/temporary_folder.hpp"

namespace program {

/// What one run of the program left behind. Its own lines on standard error are those that begin with its name; the
/// others are the extension's debug lines.
struct ProgramRun {
  int exitCode = 0;
  std::string output = {};
  std::vector<std::string> complaints = {};
  std::vector<std::string> debugLines = {};
};

/// In single quotes for the shell.
inline std::string quoted(const std::string& text) {
  std::string result = "'";
  for (const char each : text) result += each == '\'' ? std::string("'\\''") : std::string(1, each);
  return result + "'";
}

/// Runs `mirune ARGUMENTS` in a folder, with variables such as "NAME=value"; one that takes longer than a minute counts
/// as hanging.
inline ProgramRun run(const std::filesystem::path& folder, const std::string& arguments,
                      const std::string& variables = {}) {
  const support::TemporaryFolder streams;
  const std::string command = "cd " + quoted(folder.string()) +
                              " && env -u MIRUNE_CONTAINER -u MIRUNE_EXTENSION -u MIRUNE_RESOURCES " + variables +
                              " timeout 60 " MIRUNE_PROGRAM " " + arguments + " >" +
                              quoted((streams / "output").string()) + " 2>" + quoted((streams / "error").string());
  const int status = std::system(command.c_str());
  ProgramRun result{.exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : -1,
                    .output = support::readBytes(streams / "output")};
  std::istringstream error(support::readBytes(streams / "error"));
  for (std::string line; std::getline(error, line);) {
    (line.starts_with("mirune: ") ? result.complaints : result.debugLines).push_back(line);
  }
  return result;
}

inline nlohmann::json jsonOutput(const ProgramRun& result) {
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_EQ(result.complaints, std::vector<std::string>());
  return nlohmann::json::parse(result.output, nullptr, false);
}

/// The options that fix the world of a run.
struct World {
  std::string container = "container";
  std::string now = "2026-11-21T08:00:00Z";
  std::string timeZone = "Europe/Berlin";
  std::string locale = "en_US";

  std::string options() const {
    return " --container " + quoted(container) + " --now " + now + " --timezone " + timeZone + " --locale " + locale;
  }
};

/// An item as the planner writes it.
inline nlohmann::json item(const std::string& title, const std::string& id = "AAAAAAAA-0000-4000-8000-000000000001") {
  return {{"type", 1},
          {"id", id},
          {"title", title},
          {"isOn", false},
          {"calid", "c"},
          {"starttime", "2026-11-21T10:00:00Z"},
          {"endtime", "2026-11-21T11:00:00Z"},
          {"allday", false}};
}

}  // namespace program
