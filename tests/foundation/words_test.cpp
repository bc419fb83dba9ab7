#include "foundation/words.hpp"

#include <gtest/gtest.h>

#include "foundation/catalogue_names.hpp"
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
      {"pt_BR", "Empty", "Empty"},
      {"pt_BR", "One book", "Um livro"},
      {"pt_BR", "", ""},
      {"de_DE", "Bus", "Bus"},
      {"zh_Hans_CN", "Bus", "公交车"},
      {"zh_HK", "Bus", "Bus"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(Words::load(compiled, locale(row.locale)).localized(row.key), row.wanted) << row.locale;
  }
  EXPECT_EQ(Words().localized("Bus"), "Bus");
  EXPECT_EQ(Words::load("/nonexistent", locale("pt_BR")).localized("Bus"), "Bus");
  EXPECT_EQ(Words::load(compiled, locale("pt"), "another-domain").localized("Bus"), "Bus");
}

TEST(CatalogueNames, AreOfTheLocalesScript) {
  using Names = std::vector<std::string>;
  const struct {
    const char* locale;
    Names wanted;
  } rows[] = {
      {"de_AT", {"de_AT", "de", "de_DE"}},
      {"pt", {"pt", "pt_BR"}},
      {"pt_PT", {"pt_PT", "pt", "pt_BR"}},
      {"zh", {"zh", "zh_CN"}},
      {"zh_CN", {"zh_CN", "zh"}},
      {"zh_Hans", {"zh", "zh_CN"}},
      {"zh_Hans_CN", {"zh_CN", "zh"}},
      {"zh_SG", {"zh_SG", "zh", "zh_CN"}},
      {"zh_Hans_TW", {"zh", "zh_CN"}},
      {"zh_TW", {"zh_TW"}},
      {"zh_Hant", {"zh_TW"}},
      {"zh_HK", {"zh_HK", "zh_TW"}},
      {"iw_IL", {"he_IL", "he"}},
      {"sr_Latn_RS", {}},
      {"es_419", {"es_419", "es", "es_ES"}},
  };
  for (const auto& row : rows) EXPECT_EQ(catalogueNames(locale(row.locale)), row.wanted) << row.locale;
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
