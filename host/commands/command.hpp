#pragma once

#include <CLI/App.hpp>
#include <expected>
#include <functional>
#include <string>

#include "host/surroundings.hpp"
#include "messages/replies.hpp"

namespace host {

/// What a command prints on standard output, or why it failed.
using Outcome = std::expected<std::string, messages::Failure>;

/// A subcommand of the program.
struct Command {
  std::string name = {};
  std::string summary = {};
  /// Adds its arguments and options; returns what to do once they are parsed.
  std::function<std::function<Outcome()>(CLI::App&, const Surroundings&)> declare = {};
};

inline std::unexpected<messages::Failure> usage(std::string message) {
  return std::unexpected(messages::Failure{.reason = messages::Failure::Reason::usage, .message = std::move(message)});
}

inline std::unexpected<messages::Failure> failed(std::string message) {
  return std::unexpected(messages::Failure{.reason = messages::Failure::Reason::failed, .message = std::move(message)});
}

Command galleryCommand();
Command timelineCommand();
Command placeholderCommand();
Command snapshotCommand();
Command renderCommand();
Command sheetCommand();
Command demoCommand();

}  // namespace host
