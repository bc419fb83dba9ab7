#include "rendering/font_library.hpp"

#include <algorithm>
#include <array>

#include "rendering/font_registry.hpp"
#include "rendering/letters.hpp"

namespace rendering {
namespace {

using swiftui::Font;
using swiftui::FontDesign;

constexpr std::string_view systemFamily = "Inter";
constexpr std::string_view systemFolder = "/usr/share/fonts/opentype/inter";
constexpr std::string_view emojiFamily = "Noto Color Emoji";

/// By weight, as font files are called. The names of the two lightest weights are swapped between the platform and
/// OpenType.
constexpr std::array<std::string_view, 9> weightNames{"Thin",     "ExtraLight", "Light",     "Regular", "Medium",
                                                      "SemiBold", "Bold",       "ExtraBold", "Black"};

/// From 0 for the lightest one on.
std::size_t weightIndex(const Font& font) {
  const auto index = static_cast<std::size_t>(font.weight);
  // The rounded design is drawn as outlines with a round pen around them, which makes them one weight heavier.
  return font.design == FontDesign::rounded && index > 0 ? index - 1 : index;
}

std::filesystem::path systemFile(const Font& font) {
  std::string name(weightNames.at(weightIndex(font)));
  if (font.italic) name = name == "Regular" ? "Italic" : name + "Italic";
  return std::filesystem::path(systemFolder) / (std::string(systemFamily) + "-" + name + ".otf");
}

/// As fontconfig's tables of languages have it: they tell the ways to write Chinese apart by territory.
std::string fontconfigLanguage(const std::string& tag) {
  if (!tag.starts_with("zh")) return tag;
  if (tag.contains("HK") || tag.contains("MO")) return "zh-hk";
  return tag.contains("Hant") || tag.contains("TW") ? "zh-tw" : "zh-cn";
}

/// Letters that the system font lacks are looked for in these, in their order. Chinese, Japanese and Korean draw the
/// same characters in different ways, so the reader's language comes first.
std::vector<std::string> lenders(const std::string& language) {
  std::vector<std::string> families{"Noto Sans CJK SC", "Noto Sans Arabic UI", "Noto Sans Hebrew",
                                    "Noto Sans Devanagari UI"};
  const auto prefer = [&](const char* family) { families.insert(families.begin(), family); };
  if (language.starts_with("ja")) prefer("Noto Sans CJK JP");
  if (language.starts_with("ko")) prefer("Noto Sans CJK KR");
  if (language == "zh-tw") prefer("Noto Sans CJK TC");
  if (language == "zh-hk") prefer("Noto Sans CJK HK");
  return families;
}

FontWish wish(const Font& font, std::vector<std::string> families, std::string language) {
  return {.families = std::move(families),
          .weight = static_cast<int>(weightIndex(font) + 1) * 100,
          .italic = font.italic,
          .language = std::move(language)};
}

template <class HasCharacter>
bool hasAll(std::string_view text, HasCharacter has) {
  for (std::size_t position = 0; position < text.size();) {
    const char32_t character = nextCharacter(text, position);
    if (!isInvisible(character) && !has(character)) return false;
  }
  return true;
}

}  // namespace

bool canWrite(const Typeface& typeface, std::string_view text) {
  return hasAll(text, [&](char32_t character) { return typeface.has(character); });
}

const Typeface* FontLibrary::typeface(const Font& font) {
  if (!font.name.empty()) {
    if (const auto files = registeredFont(font.name)) {
      const Typeface* own = open(font.italic && !files->italic.empty() ? files->italic : files->upright);
      if (own != nullptr) return own;
    }
  }
  return systemTypeface(font);
}

const Typeface* FontLibrary::systemTypeface(const Font& font) {
  if (const Typeface* system = open(systemFile(font))) return system;
  const std::vector<std::string> plainFamilies{std::string(systemFamily), "Noto Sans", "DejaVu Sans"};
  for (const FontFace& face : faces(wish(font, plainFamilies, "en"))) {
    if (const Typeface* installed = open(face.file, face.index)) return installed;
  }
  return nullptr;
}

const Typeface* FontLibrary::typefaceFor(std::string_view character, const Font& font, const std::string& language) {
  const Typeface* own = typeface(font);
  const bool isPicture = isEmoji(character);
  if (!isPicture) {
    for (const Typeface* usual : {own, systemTypeface(font)}) {
      if (usual != nullptr && canWrite(*usual, character)) return usual;
    }
  }
  const std::string spoken = fontconfigLanguage(language);
  auto families = isPicture ? std::vector{std::string(emojiFamily)} : lenders(spoken);
  for (const FontFace& face : faces(wish(font, std::move(families), spoken))) {
    if (!hasAll(character, [&](char32_t letter) { return face.has(letter); })) continue;
    if (const Typeface* lender = open(face.file, face.index)) return lender;
  }
  return own;
}

const Typeface* FontLibrary::open(const std::filesystem::path& file, int index) {
  const auto key = std::pair(file, index);
  const auto known = open_.find(key);
  if (known != open_.end()) return known->second.get();
  return open_.emplace(key, Typeface::open(file, index)).first->second.get();
}

const std::vector<FontFace>& FontLibrary::faces(const FontWish& wish) {
  const auto known = faces_.find(wish);
  if (known != faces_.end()) return known->second;
  if (!installed_) installed_.emplace();
  return faces_.emplace(wish, installed_->sorted(wish)).first->second;
}

}  // namespace rendering
