#pragma once

#include <nlohmann/json.hpp>

namespace foundation {

/// A JSON value for what this system writes and for its own messages; objects keep the order of their members.
/// The planner's files are read with decodeJSON instead.
using JSON = nlohmann::ordered_json;

}  // namespace foundation
