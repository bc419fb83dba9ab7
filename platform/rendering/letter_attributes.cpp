#include "rendering/letter_attributes.hpp"

#include <cmath>

namespace rendering {
namespace {

int pangoUnits(double points) {
  return static_cast<int>(std::lround(points * PANGO_SCALE));
}

}  // namespace

bool joinsLetters(gunichar character) {
  switch (g_unichar_get_script(character)) {
    case G_UNICODE_SCRIPT_ARABIC:
    case G_UNICODE_SCRIPT_SYRIAC:
    case G_UNICODE_SCRIPT_NKO:
    case G_UNICODE_SCRIPT_MONGOLIAN:
    case G_UNICODE_SCRIPT_DEVANAGARI:
    case G_UNICODE_SCRIPT_BENGALI:
    case G_UNICODE_SCRIPT_GURMUKHI:
      return true;
    default:
      return false;
  }
}

void spaceLetters(const std::string& content, double spacing, PangoAttrList* attributes) {
  const auto space = [&](const char* from, const char* to) {
    if (from == to) return;
    PangoAttribute* attribute = pango_attr_letter_spacing_new(pangoUnits(spacing));
    attribute->start_index = static_cast<guint>(from - content.c_str());
    attribute->end_index = static_cast<guint>(to - content.c_str());
    pango_attr_list_insert(attributes, attribute);
  };
  const char* const end = content.c_str() + content.size();
  const char* start = content.c_str();
  for (const char* at = start; at < end; at = g_utf8_next_char(at)) {
    if (!joinsLetters(g_utf8_get_char(at))) continue;
    space(start, at);
    start = g_utf8_next_char(at);
  }
  space(start, end);
}

void keepKoreanWords(const std::string& content, PangoAttrList* attributes) {
  const char* const end = content.c_str() + content.size();
  for (const char* at = content.c_str(); at < end;) {
    const char* const start = at;
    bool isKorean = false;
    for (; at < end && g_unichar_isspace(g_utf8_get_char(at)) == FALSE; at = g_utf8_next_char(at)) {
      isKorean = isKorean || g_unichar_get_script(g_utf8_get_char(at)) == G_UNICODE_SCRIPT_HANGUL;
    }
    if (isKorean) {
      PangoAttribute* attribute = pango_attr_allow_breaks_new(FALSE);
      attribute->start_index = static_cast<guint>(start - content.c_str());
      attribute->end_index = static_cast<guint>(at - content.c_str());
      pango_attr_list_insert(attributes, attribute);
    }
    if (at < end) at = g_utf8_next_char(at);
  }
}

}  // namespace rendering
