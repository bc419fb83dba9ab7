#pragma once

#include <cstdint>

#include "picture.hpp"

namespace artwork {

/// A sheet of one colour with fibres in it, none of them further than 3/255 from that colour: darker ones in
/// light paper, lighter ones in dark paper. Between the fibres the sheet is even, which keeps it calm behind text, free
/// of bands when it is stretched, and small wherever it ends up in a file.
Picture paperSheet(const Colour& paper, std::uint64_t seed);

}  // namespace artwork
