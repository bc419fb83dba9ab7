#pragma once

#include <expected>
#include <string>

namespace host {

/// Why something that was asked of the home screen was not done.
struct Refusal {
  enum class Reason { unknown, impossible, noRoom, failed };
  Reason reason = Reason::failed;
  std::string message = {};
};

template <class Value>
using Result = std::expected<Value, Refusal>;

inline std::unexpected<Refusal> refused(Refusal::Reason reason, std::string message) {
  return std::unexpected(Refusal{.reason = reason, .message = std::move(message)});
}

}  // namespace host
