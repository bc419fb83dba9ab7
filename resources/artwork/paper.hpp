#pragma once

#include <cstdint>

#include "picture.hpp"

namespace artwork {

/// A sheet of paper that stays calm behind text: warm and cool clouds, a faint grain and a few fibres, none of them
/// further than about 2/255 from the paper's colour.
Picture paperSheet(const Colour& paper, std::uint64_t seed);

}  // namespace artwork
