#pragma once

#include <pango/pango.h>

#include <memory>
#include <string>

namespace rendering {

struct UnrefAttributes {
  void operator()(PangoAttrList* list) const { pango_attr_list_unref(list); }
};
using AttributeList = std::unique_ptr<PangoAttrList, UnrefAttributes>;

/// Whether the script's letters hang together: on a line of their own, or by the line that they hang from.
bool joinsLetters(gunichar character);

/// Spaces all letters but those that it would tear apart.
void spaceLetters(const std::string& content, double spacing, PangoAttrList* attributes);

/// Forbids to break within the words that have Korean letters.
void keepKoreanWords(const std::string& content, PangoAttrList* attributes);

}  // namespace rendering
