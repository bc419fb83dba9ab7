#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace mirune {

/// The variable of the environment that names the model which a simulator plays.
inline constexpr const char* simulatedModelVariable = "SIMULATOR_MODEL_IDENTIFIER";

/// The marketing name of a model: "iPhone9,4" is "iPhone 7 Plus". Case counts; an unknown identifier is its own name.
///
/// On a simulator ("i386", "x86_64", "arm64") the name is "Simulator " and that of the model which it plays, the
/// variable's value, "iOS" where there is none. A simulator that plays a simulator is not followed further:
/// "Simulator x86_64".
std::string deviceName(std::string_view identifier, const std::optional<std::string>& simulatedModel);

}  // namespace mirune
