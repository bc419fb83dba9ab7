#include "host/server/http_message.hpp"

#include <gtest/gtest.h>

namespace host {
namespace {

TEST(SplitTarget, DecodesTheQueryOnly) {
  using Query = std::map<std::string, std::string>;
  const struct {
    std::string target;
    std::string path;
    Query query;
  } rows[] = {
      {"/", "/", {}},
      {"", "", {}},
      {"/a?", "/a", {}},
      {"/a?b=c&d=e", "/a", {{"b", "c"}, {"d", "e"}}},
      {"/a?b", "/a", {{"b", ""}}},
      {"/a?b=", "/a", {{"b", ""}}},
      {"/a?=b", "/a", {{"", "b"}}},
      {"/a?b=c=d?e", "/a", {{"b", "c=d?e"}}},
      {"/a?b=1&b=2", "/a", {{"b", "2"}}},
      {"/a?at=2026-11-21T08%3A00%3A00Z", "/a", {{"at", "2026-11-21T08:00:00Z"}}},
      {"/a?b=c+d%20e%2B", "/a", {{"b", "c d e+"}}},
      {"/a?b=%26%3D&c%26=d", "/a", {{"b", "&="}, {"c&", "d"}}},
      {"/a?b=%", "/a", {{"b", "%"}}},
      {"/a?b=%4", "/a", {{"b", "%4"}}},
      {"/a?b=%zz%-1%+1", "/a", {{"b", "%zz%-1% 1"}}},
      {"/a?b=%00c", "/a", {{"b", std::string("\0c", 2)}}},
      {"/a?b=%2541", "/a", {{"b", "%41"}}},
      {"/%2e%2e/%3Fa?b", "/%2e%2e/%3Fa", {{"b", ""}}},
      {"/a?&&b=c&", "/a", {{"", ""}, {"b", "c"}}},
  };
  for (const auto& row : rows) {
    const auto [path, query] = splitTarget(row.target);
    EXPECT_EQ(path, row.path) << row.target;
    EXPECT_EQ(query, row.query) << row.target;
  }
}

}  // namespace
}  // namespace host
