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

/// A binary list of arrays below the root dictionary; each holds the next so many times, the last nothing.
std::string chainedBinary(unsigned depth, std::size_t times, bool isClosed = false) {
  const auto reference = [](std::size_t number) {
    return std::string{static_cast<char>(number >> 16 & 255), static_cast<char>(number >> 8 & 255),
                       static_cast<char>(number & 255)};
  };
  std::string bytes = "bplist00";
  std::string offsets = reference(bytes.size());
  bytes += "\xD1" + reference(1) + reference(2);
  offsets += reference(bytes.size());
  bytes += "\x51k";
  for (unsigned number = 2; number < depth + 2; ++number) {
    const bool isLast = number == depth + 1;
    offsets += reference(bytes.size());
    bytes += isLast && !isClosed
                 ? std::string("\xA0")
                 : static_cast<char>(0xA0 + times) + repeated(reference(isLast ? 2 : number + 1), times);
  }
  const std::size_t offsetTable = bytes.size();
  bytes += offsets + std::string(6, '\0') + "\x03\x03";
  for (const std::size_t number : {std::size_t{depth} + 2, std::size_t{0}, offsetTable}) {
    bytes += std::string(5, '\0') + reference(number);
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
  EXPECT_TRUE(PropertyList::parse(chainedBinary(250, 1)));
  EXPECT_FALSE(PropertyList::parse(chainedBinary(200'000, 1)));
  EXPECT_TRUE(PropertyList::parse(chainedBinary(10, 2)));
  EXPECT_FALSE(PropertyList::parse(chainedBinary(40, 2))) << "2^40 arrays";
  EXPECT_FALSE(PropertyList::parse(chainedBinary(3, 1, true))) << "an array in itself";
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
