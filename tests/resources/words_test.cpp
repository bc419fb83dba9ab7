#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <nlohmann/json.hpp>
#include <set>
#include <vector>

#include "po_file.hpp"
#include "support/languages.hpp"
#include "support/temporary_folder.hpp"

namespace {

using support::POFile;

const std::filesystem::path sources = MIRUNE_SOURCES;
const std::filesystem::path words = sources / "resources/words";
/// No texts: they choose a font.
const std::set<std::string> fontKeys = {"mirune_spcat_font", "mirune_spcat_font_bsize"};

POFile poFile(const std::filesystem::path& path) {
  return POFile(support::readBytes(path));
}

/// "%lld", "%@", "%2$@", sorted.
std::vector<std::string> placeholders(const std::string& text) {
  std::vector<std::string> found;
  for (std::size_t at = text.find('%'); at != std::string::npos; at = text.find('%', at + 1)) {
    const std::size_t end = text.find_first_not_of("%0123456789$l", at);
    found.push_back(text.substr(at, end == std::string::npos ? end : end + 1 - at));
  }
  std::ranges::sort(found);
  return found;
}

/// The blanks at the start and the end.
std::pair<std::string, std::string> margins(const std::string& text) {
  const std::size_t first = std::min(text.find_first_not_of(" \n\t"), text.size());
  const std::size_t last = text.find_last_not_of(" \n\t");
  return {text.substr(0, first), last == std::string::npos ? "" : text.substr(last + 1)};
}

/// Of which list a catalogue adds the empty text.
bool isOfAnEmptyList(const std::string& key) {
  return key.starts_with("No more ") && key.ends_with(" today");
}

void checkCatalogue(const POFile& catalogue, const POFile& originals, const std::string& language) {
  for (const auto& [key, original] : originals.entries()) {
    if (key.empty() || fontKeys.contains(key)) continue;
    const auto found = catalogue.entries().find(key);
    if (found == catalogue.entries().end() || found->second.text.empty()) {
      ADD_FAILURE() << "untranslated: " << key;
      continue;
    }
    const std::string& text = found->second.text;
    EXPECT_FALSE(found->second.isFuzzy) << key;
    EXPECT_EQ(placeholders(text), placeholders(key)) << key << " -> " << text;
    EXPECT_EQ(margins(text), margins(key)) << key << " -> " << text;
  }
  for (const auto& [key, entry] : catalogue.entries()) {
    EXPECT_TRUE(originals.entries().contains(key) || isOfAnEmptyList(key)) << "not in the template: " << key;
  }
  const auto head = catalogue.entries().find("");
  ASSERT_NE(head, catalogue.entries().end());
  EXPECT_TRUE(head->second.text.contains("Language: " + language + "\n")) << head->second.text;
  EXPECT_TRUE(head->second.text.contains("charset=UTF-8\n")) << head->second.text;
}

TEST(Catalogues, TranslateEverything) {
  const POFile ofWidgets = poFile(words / "mirune.pot");
  const POFile ofPage = poFile(words / "mirune-page.pot");
  ASSERT_GT(ofWidgets.entries().size(), 25U);
  ASSERT_GT(ofPage.entries().size(), 80U);
  for (const std::string language : support::languages) {
    const std::string name = language + ".po";
    for (const auto& [path, originals] :
         {std::pair(words / name, &ofWidgets), std::pair(words / "page" / name, &ofPage)}) {
      SCOPED_TRACE(path.string());
      checkCatalogue(poFile(path), *originals, language);
    }
  }
}

TEST(Catalogues, AreOfTheKnownLanguages) {
  const std::set<std::string> known(std::begin(support::languages), std::end(support::languages));
  for (const auto& folder : {words, words / "page"}) {
    std::set<std::string> found;
    for (const auto& file : std::filesystem::directory_iterator(folder)) {
      if (file.path().extension() == ".po") found.insert(file.path().stem().string());
    }
    EXPECT_EQ(found, known) << folder;
  }
}

TEST(Catalogues, ChooseAFontForTheMoodCheckIn) {
  const auto roster = nlohmann::json::parse(support::readBytes(MIRUNE_SHARE "/fonts/roster.json"));
  std::set<std::string> fonts;
  for (const auto& font : roster.at("fonts")) fonts.insert(font.at("name"));
  for (const std::string language : support::languages) {
    auto entries = poFile(words / (language + ".po")).entries();
    const std::string& font = entries["mirune_spcat_font"].text;
    const std::string& size = entries["mirune_spcat_font_bsize"].text;
    EXPECT_TRUE(fonts.contains(font)) << language << ": '" << font << "'";
    EXPECT_TRUE(!size.empty() && size.find_first_not_of("0123456789") == std::string::npos) << language << ": " << size;
  }
}

/// What stands behind each mark up to the quotation mark with which the mark ends.
std::vector<std::string> quotedBehind(const std::string& mark, const std::string& source) {
  std::vector<std::string> found;
  for (std::size_t at = source.find(mark); at != std::string::npos; at = source.find(mark, at + 1)) {
    const char before = at == 0 ? ' ' : source[at - 1];
    const std::size_t start = at + mark.size();
    const std::size_t end = source.find(mark.back(), start);
    if (std::isalnum(static_cast<unsigned char>(before)) == 0) found.push_back(source.substr(start, end - start));
  }
  return found;
}

TEST(Templates, HoldEveryTextThatTheCodeLooksUp) {
  const struct {
    const char *place, *mark, *original;
    std::size_t fewest;
  } rows[] = {
      {"extension", "localized(\"", "mirune.pot", 15},
      {"extension/catalogue", ".displayName = \"", "mirune.pot", 8},
      {"extension/catalogue", ".description = \"", "mirune.pot", 8},
      {"extension/timelines/task_entries.cpp", ".name = \"", "mirune.pot", 2},
      {"host/page", "t('", "mirune-page.pot", 40},
      {"host/page", "data-words=\"", "mirune-page.pot", 15},
      {"host/page", "data-words-label=\"", "mirune-page.pot", 3},
      {"host/page", "data-words-placeholder=\"", "mirune-page.pot", 1},
      {"host/schedule/request_reason.cpp", "return \"", "mirune-page.pot", 8},
      {"extension/shared/diagnosis.cpp", ".whenMissing = \"", "mirune-page.pot", 3},
      {"extension/shared/diagnosis.cpp", ".whenRefused = \"", "mirune-page.pot", 3},
  };
  for (const auto& row : rows) {
    const auto entries = poFile(words / row.original).entries();
    std::vector<std::filesystem::path> files;
    if (std::filesystem::is_regular_file(sources / row.place)) files.push_back(sources / row.place);
    if (files.empty()) {
      for (const auto& file : std::filesystem::recursive_directory_iterator(sources / row.place)) {
        if (file.is_regular_file()) files.push_back(file.path());
      }
    }
    std::size_t count = 0;
    for (const auto& file : files) {
      for (const std::string& key : quotedBehind(row.mark, support::readBytes(file))) {
        ++count;
        EXPECT_TRUE(entries.contains(key)) << key << " of " << file << " is not in " << row.original;
      }
    }
    EXPECT_GE(count, row.fewest) << row.mark << " in " << row.place;
  }
}

}  // namespace
