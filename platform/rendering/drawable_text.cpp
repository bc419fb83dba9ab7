#include "rendering/drawable_text.hpp"

#include <glib.h>

#include <memory>
#include <string_view>

namespace rendering {
namespace {

constexpr glong mostCharacters = 4096;

// The longer ones before those that they begin with.
constexpr std::string_view lineBreaks[] = {"\r\n", "\r", "\v", "\f", "\u0085", "\u2028", "\u2029"};

struct FreeText {
  void operator()(gchar* text) const { g_free(text); }
};

void replaceAll(std::string& text, std::string_view old, std::string_view by) {
  for (std::size_t at = text.find(old); at != std::string::npos; at = text.find(old, at + by.size())) {
    text.replace(at, old.size(), by);
  }
}

}  // namespace

std::string drawableText(std::string content) {
  if (g_utf8_validate(content.data(), static_cast<gssize>(content.size()), nullptr) == FALSE) {
    const std::unique_ptr<gchar, FreeText> valid(
        g_utf8_make_valid(content.data(), static_cast<gssize>(content.size())));
    content = valid.get();
  }
  if (content.size() > mostCharacters && g_utf8_strlen(content.c_str(), -1) > mostCharacters) {
    const gchar* end = g_utf8_offset_to_pointer(content.c_str(), mostCharacters);
    content.resize(static_cast<std::size_t>(end - content.c_str()));
    content += "…";
  }
  for (const std::string_view lineBreak : lineBreaks) replaceAll(content, lineBreak, "\n");
  return content;
}

}  // namespace rendering
