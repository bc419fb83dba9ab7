#include "foundation/words.hpp"

#include <gtest/gtest.h>

#include "support/temporary_folder.hpp"

namespace foundation {
namespace {

const std::filesystem::path compiled = MIRUNE_TEST_BUILD "/words";

Locale locale(std::string_view name) {
  return Locale::named(name).value();
}

TEST(Words, ComeFromTheCatalogueThatFitsBest) {
  const struct {
    const char *locale, *key, *wanted;
  } rows[] = {
      {"pt_BR", "Bus", "Ônibus"},
      {"pt_PT", "Bus", "Autocarro"},
      {"pt", "%lld tasks", "%lld tarefas"},
      {"pt_BR@calendar=buddhist", "Bus", "Ônibus"},
      {"pt_BR", "Untranslated", "Untranslated"},
      {"pt_BR", "", ""},
      {"de_DE", "Bus", "Bus"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(Words::load(compiled, locale(row.locale)).localized(row.key), row.wanted) << row.locale;
  }
  EXPECT_EQ(Words().localized("Bus"), "Bus");
  EXPECT_EQ(Words::load("/nonexistent", locale("pt_BR")).localized("Bus"), "Bus");
}

TEST(Words, OfADamagedCatalogueAreTheKeys) {
  const std::string good = support::readBytes(compiled / "pt/LC_MESSAGES/mirune.mo");
  ASSERT_FALSE(good.empty());
  const support::TemporaryFolder folder;
  const auto file = folder / "pt/LC_MESSAGES/mirune.mo";
  for (std::size_t size = 0; size < good.size(); ++size) {
    support::writeBytes(file, good.substr(0, size));
    EXPECT_EQ(Words::load(folder.path(), locale("pt")).localized("Bus"), "Bus") << size;
  }
  for (std::size_t place = 0; place < good.size(); ++place) {
    std::string damaged = good;
    damaged[place] = static_cast<char>(damaged[place] ^ 0xA5);
    support::writeBytes(file, damaged);
    const std::string word = Words::load(folder.path(), locale("pt")).localized("Bus");
    EXPECT_FALSE(word.empty()) << "damaged at " << place;
  }
}

}  // namespace
}  // namespace foundation
