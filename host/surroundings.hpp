#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "foundation/date.hpp"

namespace host {

/// What the machine says where the command line is silent.
struct Surroundings {
  foundation::Date now = {};             ///< to the second
  std::string timeZone = "UTC";          ///< the system's; may be one that does not exist
  std::string locale = "en_US";          ///< the system's
  std::filesystem::path container = {};  ///< the app group's folder; empty where nothing names one
  std::filesystem::path extension = {};  ///< the program mirune-extension
  std::filesystem::path resources = {};  ///< artwork, words, demo data
};

/// Reads the clock, the environment and where this program lies.
Surroundings currentSurroundings();

/// The variables of the environment that choose the container; an empty text counts as not set.
struct ContainerVariables {
  std::string_view container = {};  ///< MIRUNE_CONTAINER
  std::string_view dataHome = {};   ///< XDG_DATA_HOME; ignored unless it is an absolute path
  std::string_view home = {};       ///< HOME
};

/// The first that is set: MIRUNE_CONTAINER, XDG_DATA_HOME/mirune/GROUP, HOME/.local/share/mirune/GROUP.
std::filesystem::path defaultContainer(const ContainerVariables& variables);

}  // namespace host
