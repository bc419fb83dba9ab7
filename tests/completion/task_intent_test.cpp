#include "completion/task_intent.hpp"

#include <gtest/gtest.h>

#include "shared/override_state.hpp"
#include "support/recorded_cases.hpp"
#include "support/temporary_folder.hpp"

namespace mirune {
namespace {

using support::readBytes;
using support::TemporaryFolder;
using support::writeBytes;
using Lines = std::vector<std::string>;

const std::string firstFile(overrideFile);
const std::string secondFile(timelineOverrideFile);
const foundation::Date date(std::chrono::seconds(1709805600));  // 2024-03-07T10:00:00Z
const std::string justA = R"({"A":"2024-03-07T10:00:00Z"})";

/// Performs the intent on a container; the debug lines.
Lines linesOf(const TaskIntent& intent, const std::filesystem::path& container) {
  Lines lines;
  uikit::Platform platform;
  platform.files = foundation::FileManager(container);
  platform.log = [&](std::string_view line) { lines.emplace_back(line); };
  intent.perform(platform);
  return lines;
}

std::size_t fileCount(const std::filesystem::path& folder) {
  const std::filesystem::directory_iterator files(folder);
  return static_cast<std::size_t>(std::distance(begin(files), end(files)));
}

TEST(TaskIntent, WritesBothFilesAsRecorded) {
  for (const auto& row : support::recordedCases("platform/overrides.json")) {
    const TemporaryFolder folder;
    for (const auto& name : {firstFile, secondFile}) {
      if (!row["before"].is_null()) writeBytes(folder / name, row["before"].get<std::string>());
    }
    TaskIntent intent{.id = row["id"].get<std::string>()};
    if (!row["seconds"].is_null()) {
      const std::chrono::duration<double> seconds(row["seconds"].get<double>());
      intent.date = foundation::Date(std::chrono::round<foundation::TimeInterval>(seconds));
    }
    linesOf(intent, folder.path());
    for (const auto& name : {firstFile, secondFile}) {
      EXPECT_EQ(nlohmann::json::parse(readBytes(folder / name), nullptr, false), row["after"]) << name << ": " << row;
    }
  }
}

TEST(TaskIntent, SaysInTheDebugLogWhatItDoes) {
  const TemporaryFolder folder;
  const auto unread = foundation::fileURL(folder.path(), true) + " groupURLnilllllreaddd";
  EXPECT_EQ(linesOf({.id = "A", .date = date}, folder.path()),
            (Lines{unread, "finaljsonOK " + justA, unread, "finaljsonOK " + justA}));
  EXPECT_EQ(linesOf({.id = "A"}, folder.path()), (Lines{"finaljsonOK {}", "finaljsonOK {}"}));
  writeBytes(folder / secondFile, "damaged");
  EXPECT_EQ(linesOf({.id = "A", .date = date}, folder.path()),
            (Lines{"finaljsonOK " + justA, unread, "finaljsonOK " + justA}));
}

TEST(TaskIntent, WritesNothingWithoutAContainer) {
  const TemporaryFolder folder;
  EXPECT_EQ(linesOf({.id = "A", .date = date}, folder / "missing"), Lines{"groupURLnilllll"});
  EXPECT_EQ(linesOf({.id = "A", .date = date}, {}), Lines{"groupURLnilllll"});
  EXPECT_EQ(fileCount(folder.path()), 0U);
}

TEST(TaskIntent, WritesTheOtherFileWhereOneCannotBeWritten) {
  const std::string pairs[][2] = {{firstFile, secondFile}, {secondFile, firstFile}};
  for (const auto& [blocked, free] : pairs) {
    const TemporaryFolder folder;
    // A folder at its place refuses every write, whoever tries.
    writeBytes(folder / (blocked + "/inside"), "kept");
    linesOf({.id = "A", .date = date}, folder.path());
    EXPECT_EQ(readBytes(folder / free), justA);
    EXPECT_EQ(readBytes(folder / (blocked + "/inside")), "kept");
    EXPECT_EQ(fileCount(folder.path()), 2U) << "a temporary file is left";
  }
}

TEST(TaskIntent, KeepsTheFilesApart) {
  const TemporaryFolder folder;
  writeBytes(folder / firstFile, R"({"B":"2024-01-01T00:00:00Z"})");
  linesOf({.id = "A", .date = date}, folder.path());
  EXPECT_EQ(readBytes(folder / firstFile), R"({"A":"2024-03-07T10:00:00Z","B":"2024-01-01T00:00:00Z"})");
  EXPECT_EQ(readBytes(folder / secondFile), justA);
}

}  // namespace
}  // namespace mirune
