#pragma once

#include <concepts>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "foundation/date.hpp"

namespace appintents {

/// What a parameter holds. An absent date is a value, too: the action decides what it means.
using ParameterValue = std::variant<std::string, std::optional<foundation::Date>>;

struct IntentParameter {
  std::string title = {};
  ParameterValue value = {};

  friend bool operator==(const IntentParameter&, const IntentParameter&) = default;
};

/// An action that the system can run without opening the planner.
template <class Intent>
concept AppIntent = requires(const Intent& intent) {
  { Intent::name } -> std::convertible_to<std::string_view>;
  { Intent::title } -> std::convertible_to<std::string_view>;
  { intent.parameters() } -> std::same_as<std::vector<IntentParameter>>;
};

/// An action bound to a control: all that the host needs to ask for it later.
struct BoundIntent {
  std::string name = {};
  std::vector<IntentParameter> parameters = {};

  BoundIntent() = default;
  template <AppIntent Intent>
  // NOLINTNEXTLINE(google-explicit-constructor): an intent is bound where it stands
  BoundIntent(const Intent& intent) : name(Intent::name), parameters(intent.parameters()) {}

  friend bool operator==(const BoundIntent&, const BoundIntent&) = default;
};

}  // namespace appintents
