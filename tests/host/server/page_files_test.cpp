#include "host/server/page_files.hpp"

#include <gtest/gtest.h>

#include "support/temporary_folder.hpp"

namespace host {
namespace {

TEST(PageFiles, AreThoseOfTheFolderAndNothingElse) {
  const support::TemporaryFolder folder;
  support::writeBytes(folder / "page/index.html", "the page");
  support::writeBytes(folder / "page/style.css", "look");
  support::writeBytes(folder / "page/icon.svg", "icon");
  support::writeBytes(folder / "page/modules/main.js", "code");
  support::writeBytes(folder / "page/notes.txt", "no type");
  support::writeBytes(folder / "page/.hidden", "no type");
  support::writeBytes(folder / "secret.js", "secret");
  const PageFiles files(folder / "page");
  support::writeBytes(folder / "page/later.js", "later");

  const struct {
    const char* path;
    const char* contentType;
    const char* body;
  } rows[] = {
      {"/", "text/html; charset=utf-8", "the page"},
      {"/index.html", "text/html; charset=utf-8", "the page"},
      {"/style.css", "text/css; charset=utf-8", "look"},
      {"/icon.svg", "image/svg+xml", "icon"},
      {"/modules/main.js", "text/javascript; charset=utf-8", "code"},
  };
  for (const auto& row : rows) {
    const auto file = files.find(row.path);
    ASSERT_TRUE(file) << row.path;
    EXPECT_EQ(file->status, 200);
    EXPECT_EQ(file->contentType, row.contentType) << row.path;
    EXPECT_EQ(file->body, row.body) << row.path;
  }
  for (const char* path : {"",
                           "//",
                           "/.",
                           "/..",
                           "index.html",
                           "//index.html",
                           "/./index.html",
                           "/modules",
                           "/modules/",
                           "/modules/../index.html",
                           "/../secret.js",
                           "/modules/../../secret.js",
                           "/%2e%2e/secret.js",
                           "/..%2fsecret.js",
                           "/notes.txt",
                           "/.hidden",
                           "/later.js",
                           "/INDEX.HTML",
                           "/index.html/",
                           "/index.html?",
                           "\\index.html",
                           "/etc/passwd",
                           "//etc/passwd"}) {
    EXPECT_FALSE(files.find(path)) << path;
  }
  EXPECT_FALSE(files.find(std::string("/index.html\0", 12)));
}

TEST(PageFiles, AreNoneWithoutTheFolder) {
  const support::TemporaryFolder folder;
  EXPECT_TRUE(PageFiles(folder / "missing").empty());
  EXPECT_FALSE(PageFiles(folder / "missing").find("/"));
}

}  // namespace
}  // namespace host
