#include "rendering/icon_folder.hpp"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <algorithm>

#include "flat_file.hpp"
#include "rendering/asset_catalog.hpp"
#include "support/temporary_folder.hpp"

namespace rendering {
namespace {

using support::writeBytes;
using uikit::ColorScheme;

std::string svgOf(const std::string& content, int side = 20) {
  const std::string length = '"' + std::to_string(side) + '"';
  return R"(<svg xmlns="http://www.w3.org/2000/svg" xmlns:xlink="http://www.w3.org/1999/xlink" width=)" + length +
         " height=" + length + ">" + content + "</svg>";
}

const std::string greenSquare = R"(<rect width="20" height="20" fill="#0f0"/>)";

/// Elements that say ten times over what the one before says.
std::string bomb() {
  std::string svg = R"(<g id="a"><circle r="9"/></g>)";
  for (char name = 'b'; name < 'j'; ++name) {
    svg += std::string("<g id=\"") + name + "\">";
    for (int time = 0; time < 10; ++time)
      svg += std::string("<use xlink:href=\"#") + static_cast<char>(name - 1) + "\"/>";
    svg += "</g>";
  }
  return svg;
}

class IconFolderTest : public testing::Test {
 protected:
  IconFolderTest() {
    writeBytes(root_ / "icons/dot.svg", svgOf(greenSquare));
    writeBytes(root_ / "secret.svg", svgOf(greenSquare));
    writeBytes(root_ / "assets/images/own.svg", svgOf(greenSquare, 10));
  }

  swiftui::Size sizeOf(const std::string& name, ColorScheme scheme = ColorScheme::light) const {
    return catalog_.size({.name = name, .colorScheme = scheme, .folder = icons_});
  }

  support::TemporaryFolder root_;
  std::filesystem::path icons_ = root_ / "icons";
  AssetCatalog catalog_{root_ / "assets"};
};

constexpr swiftui::Size none{};

TEST_F(IconFolderTest, StandsInForMissingAssetsOnly) {
  writeBytes(icons_ / "own.svg", svgOf(greenSquare, 30));
  writeBytes(icons_ / "exported.svg",
             "\xEF\xBB\xBF<?xml version='1.0' encoding='utf-8'?>\n<!-- a cat -->" + svgOf(greenSquare, 50));
  EXPECT_EQ(sizeOf("exported"), (swiftui::Size{50, 50}));
  writeBytes(icons_ / "photo@3x.png", flatFile(30, 15, {.red = 1}));
  writeBytes(icons_ / "photo~dark.png", flatFile(7, 7, {.red = 1}));
  EXPECT_EQ(sizeOf("own"), (swiftui::Size{10, 10}));
  EXPECT_EQ(sizeOf("dot"), (swiftui::Size{20, 20}));
  EXPECT_EQ(sizeOf("photo"), (swiftui::Size{10, 5}));
  EXPECT_EQ(sizeOf("photo", ColorScheme::dark), (swiftui::Size{7, 7}));
  EXPECT_EQ(catalog_.size({.name = "dot"}), none) << "without the folder";
  EXPECT_EQ(catalog_.size({.name = "dot", .isSymbol = true, .folder = icons_}), none);
  EXPECT_EQ(drawn(catalog_, {.name = "dot", .folder = icons_}, {.frame = {{0, 0}, {20, 20}}}).at(10, 10),
            (Pixel{0, 255, 0, 255}));
}

TEST_F(IconFolderTest, ReadsNothingOutsideOfTheFolder) {
  writeBytes(icons_ / ".hidden.svg", svgOf(greenSquare));
  writeBytes(icons_ / "below/deep.svg", svgOf(greenSquare));
  std::filesystem::create_symlink(root_ / "secret.svg", icons_ / "link.svg");
  std::filesystem::create_symlink("dot.svg", icons_ / "alias.svg");
  std::filesystem::create_symlink(root_ / "none.svg", icons_ / "dangling.svg");
  for (const std::string& name :
       {std::string("../secret"), (root_ / "secret").string(), std::string(".hidden"), std::string("below/deep"),
        std::string("below\\deep"), std::string(), std::string("."), std::string(".."), std::string("dot\0", 4),
        std::string(5000, 'a'), std::string("link"), std::string("alias"), std::string("dangling")}) {
    EXPECT_EQ(sizeOf(name), none) << name;
  }
  std::filesystem::create_directory_symlink(icons_, root_ / "elsewhere");
  EXPECT_EQ(catalog_.size({.name = "dot", .folder = root_ / "elsewhere"}), none);
  EXPECT_EQ(catalog_.size({.name = "dot", .folder = root_ / "nowhere"}), none);
}

TEST_F(IconFolderTest, DrawsNothingForWhatIsNoPicture) {
  const std::string png = flatFile(3000, 1, {.red = 1});
  const struct {
    const char* file;
    std::string bytes;
  } rows[] = {
      {"a.svg", ""},
      {"a.svg", "<svg"},
      {"a.svg", R"(<svg xmlns="http://www.w3.org/2000/svg"><circle r="4"/></svg>)"},
      {"a.svg", svgOf(greenSquare, 0)},
      {"a.svg", svgOf(greenSquare, 3000)},
      {"a.svg", svgOf(greenSquare + std::string(600'000, ' '))},
      {"a.svg", svgOf(greenSquare + bomb())},
      {"a.png", ""},
      {"a.png", "no picture"},
      {"a.png", png},
      {"a@3x.png", flatFile(8, 8, {.red = 1}).substr(0, 40)},
      {"a@3x.png", flatFile(8, 8, {.red = 1}) + std::string(5'000'000, ' ')},
  };
  for (const auto& row : rows) {
    writeBytes(icons_ / row.file, row.bytes);
    EXPECT_EQ(sizeOf("a"), none) << row.file << ' ' << row.bytes.substr(0, 200);
    std::filesystem::remove(icons_ / row.file);
  }
  ASSERT_EQ(::mkfifo((icons_ / "a.svg").c_str(), 0600), 0);
  std::filesystem::create_directory(icons_ / "a.png");
  EXPECT_EQ(sizeOf("a"), none) << "a pipe and a folder";
}

TEST_F(IconFolderTest, PicturesLoadNoOtherFile) {
  // Were the style sheet read, the square would be blue.
  writeBytes(icons_ / "blue.css", "rect { fill: #00f !important }");
  writeBytes(icons_ / "a.svg", svgOf("<style>@import url('blue.css'); @import url('file://" +
                                     (icons_ / "blue.css").string() + "');</style>" + greenSquare));
  EXPECT_EQ(drawn(catalog_, {.name = "a", .folder = icons_}, {.frame = {{0, 0}, {20, 20}}}).at(10, 10),
            (Pixel{0, 255, 0, 255}));
}

TEST_F(IconFolderTest, StaysWithinItsFrame) {
  writeBytes(icons_ / "wide.svg", svgOf(R"(<rect x="-99" y="-99" width="300" height="300" fill="#0f0"/>)"));
  const Pixels pixels = drawn(catalog_, {.name = "wide", .folder = icons_}, {.frame = {{5, 5}, {10, 10}}});
  EXPECT_EQ(pixels.at(5, 14), (Pixel{0, 255, 0, 255}));
  EXPECT_EQ(pixels.at(4, 10), (Pixel{0, 0, 0, 0}));
  EXPECT_EQ(pixels.at(10, 15), (Pixel{0, 0, 0, 0}));
}

TEST_F(IconFolderTest, SeesThatAFileWasReplacedOrRemoved) {
  writeBytes(root_ / "new.svg", svgOf(greenSquare, 40));
  EXPECT_EQ(sizeOf("dot"), (swiftui::Size{20, 20}));
  std::filesystem::rename(root_ / "new.svg", icons_ / "dot.svg");
  EXPECT_EQ(sizeOf("dot"), (swiftui::Size{40, 40}));
  writeBytes(icons_ / "dot.svg", svgOf(greenSquare + greenSquare, 60));
  EXPECT_EQ(sizeOf("dot"), (swiftui::Size{60, 60}));
  std::filesystem::remove(icons_ / "dot.svg");
  EXPECT_EQ(sizeOf("dot"), none);
}

TEST(IconFolders, KeepOnlySoManyPictures) {
  const support::TemporaryFolder folder;
  IconFolders folders;
  const auto find = [&](int number) {
    return std::weak_ptr(folders.find(folder.path(), std::to_string(number), ColorScheme::light));
  };
  std::vector<std::weak_ptr<const Picture>> found;
  for (int number = 0; number < 100; ++number) {
    writeBytes(folder / (std::to_string(number) + ".svg"), svgOf(greenSquare));
    found.push_back(find(number));
    EXPECT_EQ(find(0).lock(), found[0].lock()) << "is asked for again and again, and so never let go";
  }
  EXPECT_FALSE(found[0].expired());
  EXPECT_EQ(std::ranges::count_if(found, [](const auto& picture) { return !picture.expired(); }), 64);
  EXPECT_FALSE(found[99].expired());

  // A picture of 16 million bytes each.
  for (int number = 0; number < 3; ++number) {
    writeBytes(folder / (std::to_string(number) + ".png"), flatFile(2048, 2000, {.red = 1}));
    std::filesystem::remove(folder / (std::to_string(number) + ".svg"));
    found[static_cast<std::size_t>(number)] = find(number);
  }
  EXPECT_TRUE(found[0].expired());
  EXPECT_FALSE(found[1].expired() || found[2].expired());
}

}  // namespace
}  // namespace rendering
