#include "lists/header_row.hpp"

#include "lists/header_badge.hpp"
#include "lists/list_texts.hpp"

namespace mirune {

using namespace swiftui;

View HeaderRow::body(const EnvironmentValues&) const {
  return hstack({.spacing = 0}, {listTitle(name), spacer(), HeaderBadge{.image = image, .date = date}});
}

View BareHeaderRow::body(const EnvironmentValues&) const {
  return hstack({.spacing = 0}, {listTitle(name), badgeSizer().frame({.width = 0})});
}

}  // namespace mirune
