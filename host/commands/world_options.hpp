#pragma once

#include <CLI/App.hpp>
#include <expected>
#include <optional>
#include <string>

#include "host/surroundings.hpp"
#include "messages/replies.hpp"
#include "messages/world.hpp"

namespace host {

/// The options that describe the device, the same for every command that asks the extension.
class WorldOptions {
 public:
  /// What the options fall back on.
  explicit WorldOptions(const Surroundings& surroundings);

  /// The command must keep this value at its place until its arguments are parsed.
  void addTo(CLI::App& app);

  /// The world that was asked for; a usage failure where --now is no moment. Everything else the extension checks.
  std::expected<messages::World, messages::Failure> world() const;

  /// Whether a moment, a time zone was given rather than taken from the machine.
  bool hasMoment() const { return now_.has_value(); }
  bool hasTimeZone() const { return timeZone_.has_value(); }

 private:
  messages::World world_;
  std::optional<std::string> now_;
  std::optional<std::string> timeZone_;
};

}  // namespace host
