#include "foundation/property_list.hpp"

#include <gtest/gtest.h>

#include <random>

namespace foundation {
namespace {

constexpr std::string_view xmlStart =
    R"(<?xml version="1.0" encoding="UTF-8"?><!DOCTYPE plist PUBLIC "-//Apple//DTD PLIST 1.0//EN" )"
    R"("http://www.apple.com/DTDs/PropertyList-1.0.dtd"><plist version="1.0">)";

std::string xml(std::string_view root) {
  return std::string(xmlStart) + std::string(root) + "</plist>";
}

std::string repeated(std::string_view text, std::size_t count) {
  std::string result;
  for (std::size_t at = 0; at < count; ++at) result += text;
  return result;
}

std::string sampleXML() {
  return xml(
      "<dict><key>a</key><integer>-5</integer><key>b</key><true/><key>c</key><string>&lt;x&gt;</string>"
      "<key>d</key><real>1.5</real><key>e</key><array><dict/><data>AAEC</data></array>"
      "<key>f</key><date>2024-03-07T10:00:00Z</date></dict>");
}

std::string binary(const std::string& text) {
  plist_t root = nullptr;
  plist_from_xml(text.data(), static_cast<std::uint32_t>(text.size()), &root);
  char* bytes = nullptr;
  std::uint32_t size = 0;
  plist_to_bin(root, &bytes, &size);
  std::string result(bytes, size);
  plist_to_bin_free(bytes);
  plist_free(root);
  return result;
}

/// A binary list of arrays, each the only element of the one before, below the root dictionary.
std::string deepBinary(unsigned depth) {
  const auto reference = [](unsigned number) {
    return std::string{static_cast<char>(number >> 16 & 255), static_cast<char>(number >> 8 & 255),
                       static_cast<char>(number & 255)};
  };
  std::string bytes = "bplist00";
  std::string offsets = reference(static_cast<unsigned>(bytes.size()));
  bytes += "\xD1" + reference(1) + reference(2);
  offsets += reference(static_cast<unsigned>(bytes.size()));
  bytes += "\x51k";
  for (unsigned number = 2; number < depth + 2; ++number) {
    offsets += reference(static_cast<unsigned>(bytes.size()));
    bytes += number == depth + 1 ? std::string("\xA0") : "\xA1" + reference(number + 1);
  }
  const auto offsetTable = static_cast<unsigned>(bytes.size());
  bytes += offsets + std::string(6, '\0') + "\x03\x03";
  for (const unsigned number : {depth + 2, 0U, offsetTable}) {
    bytes += std::string(4, '\0') + std::string(1, static_cast<char>(number >> 24)) + reference(number);
  }
  return bytes;
}

TEST(PropertyList, ReadsBothForms) {
  for (const std::string& bytes : {sampleXML(), binary(sampleXML())}) {
    const auto list = PropertyList::parse(bytes);
    ASSERT_TRUE(list);
    EXPECT_EQ(list->value("a"), PropertyList::Value(std::int64_t{-5}));
    EXPECT_EQ(list->value("b"), PropertyList::Value(true));
    EXPECT_EQ(list->value("c"), PropertyList::Value("<x>"));
    EXPECT_EQ(list->value("d"), PropertyList::Value(1.5));
    EXPECT_EQ(list->value("e"), PropertyList::Value());
    EXPECT_EQ(list->value("missing"), PropertyList::Value());
  }
}

TEST(PropertyList, RefusesWhatIsNotADictionary) {
  for (const std::string& bytes :
       {std::string(), std::string("garbage"), std::string("<?xml"), xml(""), xml("<array/>"),
        xml("<string>x</string>"), std::string("bplist00"), binary(xml("<array/>")), std::string(40, '\0'),
        std::string("bplist00") + sampleXML()}) {
    EXPECT_FALSE(PropertyList::parse(bytes)) << bytes;
  }
}

TEST(PropertyList, OutlivesDeepNesting) {
  const auto nested = [](std::size_t depth) {
    return xml("<dict><key>k</key>" + repeated("<array>", depth) + repeated("</array>", depth) + "</dict>");
  };
  EXPECT_TRUE(PropertyList::parse(nested(100)));
  EXPECT_FALSE(PropertyList::parse(nested(200'000)));
  EXPECT_FALSE(PropertyList::parse(xml("<dict><key>k</key>" + repeated("<array>", 200'000))));
  EXPECT_TRUE(PropertyList::parse(xml("<dict><key>k</key><array>" + repeated("<dict/>", 10'000) + "</array></dict>")));
  EXPECT_TRUE(PropertyList::parse(deepBinary(100)));
  EXPECT_FALSE(PropertyList::parse(deepBinary(200'000)));
}

TEST(PropertyList, OutlivesDamage) {
  std::mt19937 random(1);
  for (const std::string& good : {sampleXML(), binary(sampleXML())}) {
    for (std::size_t size = 0; size < good.size(); ++size) {
      const auto list = PropertyList::parse(good.substr(0, size));
      if (list) list->value("a");
    }
    for (int round = 0; round < 3000; ++round) {
      std::string damaged = good;
      for (int count = 0; count < 3; ++count) damaged[random() % damaged.size()] = static_cast<char>(random());
      const auto list = PropertyList::parse(damaged);
      if (list) list->value("c");
    }
  }
}

}  // namespace
}  // namespace foundation
