#include "badge_table.hpp"

#include <sstream>
#include <stdexcept>

#include "noise.hpp"

namespace artwork {

namespace {

Badge badgeFrom(const std::string& line) {
  std::istringstream row(line);
  std::string appearance, name, main, bleed;
  std::getline(row, appearance, '\t');
  std::getline(row, name, '\t');
  std::getline(row, main, '\t');
  std::getline(row, bleed);
  if (appearance != "light" && appearance != "dark") throw std::invalid_argument("no appearance: " + appearance);
  return {.name = name,
          .wash = {.appearance = appearance == "dark" ? Appearance::dark : Appearance::light,
                   .main = colourFrom(main),
                   .bleed = colourFrom(bleed),
                   .seed = seedOf(name)}};
}

}  // namespace

std::vector<Badge> readBadges(std::istream& table) {
  std::vector<Badge> badges;
  int number = 0;
  for (std::string line; std::getline(table, line);) {
    ++number;
    if (line.empty() || line.front() == '#') continue;
    try {
      badges.push_back(badgeFrom(line));
    } catch (const std::invalid_argument& fault) {
      throw std::invalid_argument("line " + std::to_string(number) + ": " + fault.what());
    }
  }
  return badges;
}

}  // namespace artwork
