#include "host/last_line_reader.hpp"

#include <gtest/gtest.h>

namespace {

TEST(LastLine, IsTheLastOneThatIsNotBlank) {
  const std::pair<const char*, const char*> cases[] = {
      {"", ""},
      {" \n\t\r\n", ""},
      {"one", "one"},
      {"one\ntwo\n", "two"},
      {"one\r\n  two and more \r\n\n \n", "two and more"},
      {"\n\none", "one"},
  };
  for (const auto& [text, line] : cases) EXPECT_EQ(host::lastLine(text), line) << '"' << text << '"';
}

}  // namespace
