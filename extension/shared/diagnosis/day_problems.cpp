#include "shared/diagnosis/day_problems.hpp"

#include <algorithm>
#include <chrono>

namespace mirune {

bool isDayKey(std::string_view key) {
  constexpr std::string_view form = "0000/00/00";
  const auto fits = [](char byte, char expected) {
    return expected == '0' ? byte >= '0' && byte <= '9' : byte == expected;
  };
  if (!std::ranges::equal(key, form, fits)) return false;
  const auto number = [&](std::size_t start, std::size_t length) {
    int value = 0;
    for (const char digit : key.substr(start, length)) value = value * 10 + (digit - '0');
    return value;
  };
  using namespace std::chrono;
  return (year(number(0, 4)) / number(5, 2) / number(8, 2)).ok();
}

}  // namespace mirune
