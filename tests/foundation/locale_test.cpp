#include "foundation/locale.hpp"

#include <gtest/gtest.h>

namespace foundation {
namespace {

std::string identifierOf(std::string_view name) {
  const auto locale = Locale::named(name);
  return locale ? locale->identifier() : "refused";
}

TEST(Locale, IsKnownByName) {
  const struct {
    const char* name;
    const char* wanted;
  } rows[] = {
      {"de_DE", "de_DE"},
      {"de-DE", "de_DE"},
      {"de_DE.UTF-8", "de_DE"},
      {"de_DE.UTF-8@euro", "de_DE"},
      {"sr_RS@latin", "sr_Latn_RS"},
      {"zh_Hans_CN", "zh_Hans_CN"},
      {"az_AZ", "az_AZ"},
      {"es_419", "es_419"},
      {"en_US_POSIX", "en_US_POSIX"},
      {"C", "en_US_POSIX"},
      {"ja_JP@calendar=japanese", "ja_JP@calendar=japanese"},
      {"xx_YY", "refused"},
      {"de_XX", "refused"},
      {"de_", "refused"},
      {"_DE", "refused"},
      {"", "refused"},
      {"../../etc/passwd", "refused"},
      {"root", "refused"},
  };
  for (const auto& row : rows) EXPECT_EQ(identifierOf(row.name), row.wanted) << row.name;
  EXPECT_EQ(identifierOf(std::string_view("de\0DE", 5)), "refused");
  EXPECT_EQ(identifierOf(std::string(100'000, 'd')), "refused");
}

TEST(Locale, KnowsItsLanguageAndDirection) {
  EXPECT_EQ(Locale::named("zh_Hans_CN")->language(), "zh");
  EXPECT_EQ(Locale::named("ja_JP@calendar=japanese")->language(), "ja");
  for (const char* name : {"ar_EG", "he_IL", "fa_IR", "ur_PK", "az_Arab_IR"}) {
    EXPECT_TRUE(Locale::named(name)->isRightToLeft()) << name;
  }
  for (const char* name : {"en_US", "az_AZ", "tr_TR"}) EXPECT_FALSE(Locale::named(name)->isRightToLeft()) << name;
}

TEST(SystemLocale, FollowsTheVariablesInTheirOrder) {
  const struct {
    LocaleVariables variables;
    const char* wanted;
  } rows[] = {
      {{}, "en_US"},
      {{.lang = "de_DE.UTF-8"}, "de_DE"},
      {{.lcMessages = "fr_FR", .lang = "de_DE"}, "fr_FR"},
      {{.lcAll = "it_IT", .lcMessages = "fr_FR", .lang = "de_DE"}, "it_IT"},
      {{.language = "pt_BR:pt:en", .lang = "de_DE"}, "pt_BR"},
      {{.language = "pt_BR", .lcAll = "C", .lang = "de_DE"}, "en_US_POSIX"},
      {{.language = "nonsense", .lang = "de_DE"}, "de_DE"},
      {{.lcAll = "nonsense", .lang = "de_DE"}, "de_DE"},
      {{.lang = "nonsense"}, "en_US"},
  };
  for (const auto& row : rows) EXPECT_EQ(systemLocale(row.variables).identifier(), row.wanted);
}

}  // namespace
}  // namespace foundation
