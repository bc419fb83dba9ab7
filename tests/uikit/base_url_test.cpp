#include "uikit/base_url.hpp"

#include <gtest/gtest.h>

namespace uikit {
namespace {

TEST(BaseURL, TakesPathsAtItsEnd) {
  const std::pair<const char*, const char*> rows[] = {
      {"https://planner.example", "https://planner.example"},
      {"https://x/", "https://x"},
      {"http://localhost:8080/app///", "http://localhost:8080/app"},
      {"https://[::1]:80/a%20b", "https://[::1]:80/a%20b"},
      {"mirune://open", "mirune://open"},
      {"x-planner+1.0://open/", "x-planner+1.0://open"},
  };
  for (const auto& [text, base] : rows) EXPECT_EQ(baseURL(text), base) << text;
}

TEST(BaseURL, RefusesWhatALinkShouldNotBeginWith) {
  for (const char* text : {"",
                           "planner.example",
                           "//planner.example",
                           "https:",
                           "https://",
                           "https:///",
                           "https:///app",
                           "mirune:open",
                           "1x://a",
                           "://a",
                           "a b://c",
                           "https://a b",
                           "https://a?b",
                           "https://a#b",
                           "https://a\"b",
                           "https://a<b",
                           "https://a\nb",
                           "https://\xC3\xBC",
                           "javascript://a",
                           "JavaScript://%0aalert(1)",
                           "data://a",
                           "file:///etc",
                           "file://host/etc"}) {
    EXPECT_EQ(baseURL(text), std::nullopt) << text;
  }
}

}  // namespace
}  // namespace uikit
