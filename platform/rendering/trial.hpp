#pragma once

#include <chrono>
#include <functional>

namespace rendering {

/// Whether a piece of work comes to its end, and with success, in so much processor time. It is done in a copy of this
/// process, so that nothing stays of it and nothing here fails or waits with it; ten seconds by the clock are the most
/// that it may take on a busy computer. For work that others decide, such as drawing a file that they wrote.
bool succeedsWithin(std::chrono::milliseconds processorTime, const std::function<bool()>& work);

}  // namespace rendering
