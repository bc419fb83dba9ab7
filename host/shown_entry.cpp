#include "host/shown_entry.hpp"

#include <tuple>

namespace host {

std::optional<std::size_t> shownEntry(std::span<const foundation::Date> dates, foundation::Date moment) {
  // Greater is better: due before ahead; of those due the late ones, of those ahead the early ones.
  const auto rank = [&](std::size_t index) {
    const auto date = dates[index].time_since_epoch();
    const bool isDue = dates[index] <= moment;
    return std::tuple(isDue, isDue ? date : -date, index);
  };
  std::optional<std::size_t> shown;
  for (std::size_t index = 0; index < dates.size(); ++index) {
    if (!shown || rank(*shown) < rank(index)) shown = index;
  }
  return shown;
}

}  // namespace host
