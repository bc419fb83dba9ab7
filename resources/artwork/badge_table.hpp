#pragma once

#include <istream>
#include <string>
#include <vector>

#include "wash.hpp"

namespace artwork {

/// One row of badges.tsv.
struct Badge {
  std::string name;
  Wash wash;
};

/// Reads the table of badges; lines that start with '#' are remarks. Throws std::invalid_argument with the line's
/// number where a row does not read.
std::vector<Badge> readBadges(std::istream& table);

}  // namespace artwork
