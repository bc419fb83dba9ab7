// Paints the artwork of the widgets: mirune-artwork TABLE FOLDER
//
// Pictures are named as the views ask for them; "~dark" marks a variant for the dark appearance, "@3x" three pixels a
// point.

#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>

#include "badge_table.hpp"
#include "noise.hpp"
#include "paper.hpp"

namespace {

void paint(const std::filesystem::path& table, const std::filesystem::path& folder) {
  std::ifstream rows(table);
  if (!rows) throw std::runtime_error("cannot read " + table.string());
  std::filesystem::create_directories(folder);
  for (const artwork::Badge& badge : artwork::readBadges(rows)) {
    artwork::painted(badge.wash).writePng(folder / (badge.name + "@3x.png"), false);
  }
  const std::string paper = "paper1new_widget";
  for (const bool dark : {false, true}) {
    const artwork::Colour colour = artwork::paperOf(dark ? artwork::Appearance::dark : artwork::Appearance::light);
    artwork::paperSheet(colour, artwork::seedOf(paper))
        .writePng(folder / (paper + (dark ? "~dark@3x.png" : "@3x.png")), true);
  }
}

}  // namespace

int main(int count, char** arguments) {
  if (count != 3) {
    std::cerr << "usage: mirune-artwork TABLE FOLDER\n";
    return 2;
  }
  try {
    paint(arguments[1], arguments[2]);
  } catch (const std::exception& fault) {
    std::cerr << "mirune-artwork: " << fault.what() << '\n';
    return 1;
  }
  return 0;
}
