#pragma once

#include <CLI/App.hpp>
#include <concepts>
#include <expected>
#include <functional>
#include <string>
#include <utility>

#include "host/surroundings.hpp"
#include "messages/replies.hpp"

namespace host {

/// What a command prints on standard output.
struct Printed {
  Printed(std::convertible_to<std::string> auto&& printed)  // NOLINT(google-explicit-constructor)
      : text(std::forward<decltype(printed)>(printed)) {}

  std::string text;
  bool foundFaults = false;  ///< the command did its work, and something that it looked at is not as it should be
};

/// What a command printed, or why it failed.
using Outcome = std::expected<Printed, messages::Failure>;

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
Command tapCommand();
Command demoCommand();
Command doctorCommand();
Command deviceNameCommand();
Command serveCommand();

}  // namespace host
