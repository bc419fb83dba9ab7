#include "foundation/strings.hpp"

#include <gtest/gtest.h>

namespace foundation {
namespace {

TEST(Strings, ChangeCaseTheSameInEveryLocale) {
  const struct {
    const char *text, *upper, *lower;
  } rows[] = {
      {"", "", ""},
      {"Mood i [z] 1", "MOOD I [Z] 1", "mood i [z] 1"},
      {"straße", "STRASSE", "straße"},
      {"ıİ", "Iİ", "ıi̇"},
      {"ﬁŉ", "FIʼN", "ﬁŉ"},
      {"Μάιος", "ΜΆΙΟΣ", "μάιος"},
      {"5月", "5月", "5月"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(uppercased(row.text), row.upper);
    EXPECT_EQ(lowercased(row.text), row.lower);
  }
  EXPECT_EQ(uppercased("a\xFF"), "A\uFFFD") << "damaged text is replaced, not refused";
}

TEST(Strings, AreFilledAtTheirFirstPlaceholder) {
  EXPECT_EQ(filled("%lld of %lld", 1234567), "1234567 of %lld");
  EXPECT_EQ(filled("noch %lld", -3), "noch -3");
  EXPECT_EQ(filled("100%", 3), "100%");
}

}  // namespace
}  // namespace foundation
