// Where no further file, socket or pipe can be opened.

#include <sys/resource.h>

#include "live_server.hpp"

namespace program {
namespace {

#ifdef __SANITIZE_ADDRESS__
constexpr bool hasSanitizers = true;
#else
constexpr bool hasSanitizers = false;
#endif
constexpr const char* whySkipped = "the sanitizers open pipes themselves, and stop the program where they cannot";

TEST(FewDescriptors, DrawTheSamePictureOrNoneAndSayWhy) {
  if (hasSanitizers) GTEST_SKIP() << whySkipped;
  const support::TemporaryFolder folder;
  const auto picture = [&](const std::string& limit) {
    std::filesystem::remove(folder / "a.png");
    const auto drawn = run(folder.path(), "render tasks systemSmall -o a.png" + World().options(), limit);
    const std::string bytes = support::readBytes(folder / "a.png");
    EXPECT_EQ(drawn.exitCode, bytes.empty() ? 1 : 0);
    EXPECT_EQ(drawn.complaints.size(), bytes.empty() ? 1U : 0U);
    for (const std::string& line : drawn.complaints) EXPECT_TRUE(line.ends_with("Too many open files")) << line;
    return bytes;
  };
  const std::string whole = picture("");
  ASSERT_NE(whole, "");
  int refused = 0;
  int drawn = 0;
  // With fewer the system cannot load a program: whoever runs this may have left one open.
  for (int most = 5; most < 24; ++most) {
    SCOPED_TRACE(most);
    const std::string bytes = picture("prlimit --nofile=" + std::to_string(most));
    EXPECT_TRUE(bytes.empty() || bytes == whole);
    ++(bytes.empty() ? refused : drawn);
  }
  EXPECT_GT(refused, 0);
  EXPECT_GT(drawn, 0);
}

TEST_F(LiveServer, GoesOnWhenItCanOpenFilesAgain) {
  if (hasSanitizers) GTEST_SKIP() << whySkipped;
  const std::string picture = pathOf(drawnState()["widgets"][0]) + "/picture?scale=1.25";
  support::Connection early(server->port());
  ASSERT_TRUE(comesTrue([&] { return page.get("/api/state").status == 200; })) << "so that the earlier one is accepted";
  const auto limit = [&](rlim_t most) {
    const rlimit wanted = {.rlim_cur = most, .rlim_max = 1024};
    ASSERT_EQ(::prlimit(server->id(), RLIMIT_NOFILE, &wanted, nullptr), 0);
  };
  for (const pid_t each : server->extensions()) ::kill(each, SIGKILL);
  limit(0);
  ASSERT_TRUE(early.send("GET " + picture + " HTTP/1.1\r\nHost: 127.0.0.1:" + std::to_string(server->port()) +
                         "\r\nCookie: " + page.cookie + "\r\nConnection: close\r\n\r\n"));
  const auto refused = support::parseReply(early.receive());
  EXPECT_EQ(refused.status, 502);
  EXPECT_NE(refused.body.find("Too many open files"), std::string::npos) << refused.body;

  const support::Connection waiting(server->port());
  limit(1024);
  expectFine();
  EXPECT_TRUE(isPNG(page.get(picture)));
  drawnState();
}

}  // namespace
}  // namespace program
