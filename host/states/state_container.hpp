#pragma once

#include <expected>
#include <filesystem>
#include <string>

#include "host/states/widget_state.hpp"

namespace host {

/// Writes the container of a state: the sample planner with the state's own tasks, habits, events and moods, around the
/// moment of that world. Nothing is written for a state without a container. `demo` is the folder of the sample's
/// templates, `scratch` one for the state's own. The error is one line.
std::expected<void, std::string> writeStateContainer(const WidgetState& state, const messages::World& world,
                                                     const std::filesystem::path& demo,
                                                     const std::filesystem::path& scratch);

}  // namespace host
