#include "host/commands/gallery_listing.hpp"

#include <algorithm>
#include <array>
#include <vector>

namespace host {

namespace {

constexpr std::size_t columns = 5;
using Row = std::array<std::string, columns>;

std::string joined(const std::vector<std::string>& texts) {
  std::string result;
  for (const auto& text : texts) result += (result.empty() ? "" : " ") + text;
  return result;
}

/// In characters of UTF-8, not bytes.
std::size_t width(const std::string& text) {
  return static_cast<std::size_t>(std::ranges::count_if(text, [](char byte) { return (byte & 0xC0) != 0x80; }));
}

}  // namespace

std::string galleryTable(const messages::Catalogue& catalogue) {
  std::vector<Row> rows;
  for (const auto& widget : catalogue.widgets) {
    rows.push_back({widget.shortName, widget.kind, widget.displayName, joined(widget.families), widget.description});
  }
  constexpr std::size_t last = columns - 1;  // is not padded
  std::array<std::size_t, last> widths = {};
  for (const auto& row : rows) {
    for (std::size_t column = 0; column < last; ++column) {
      widths[column] = std::max(widths[column], width(row[column]));
    }
  }
  std::string table;
  for (const auto& row : rows) {
    for (std::size_t column = 0; column < last; ++column) {
      table += row[column] + std::string(widths[column] - width(row[column]) + 2, ' ');
    }
    table += row[last] + "\n";
  }
  return table;
}

std::string galleryJSON(const messages::Catalogue& catalogue) {
  auto records = foundation::JSON::array();
  for (const auto& widget : catalogue.widgets) {
    records.push_back({{"kind", widget.kind},
                       {"shortName", widget.shortName},
                       {"displayName", widget.displayName},
                       {"description", widget.description},
                       {"families", widget.families}});
  }
  return records.dump(2) + "\n";
}

}  // namespace host
