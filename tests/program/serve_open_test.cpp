#include "live_server.hpp"

namespace program {
namespace {

/// A server that was told to open the browser, where xdg-open is a stand-in that keeps the address in a file.
class OpeningServer : public LiveServer {
 protected:
  OpeningServer() : LiveServer({"--now", "2026-11-21T08:00:00Z", "--open"}) {}

  std::string opened() const { return support::readBytes(stand.folder / "opened"); }

  struct StandIn {
    explicit StandIn() {
      support::writeBytes(folder / "xdg-open",
                          "#!/bin/sh\nprintf %s \"$1\" >\"${0%/*}/part\" && mv \"${0%/*}/part\" "
                          "\"${0%/*}/opened\"\nexit $(cat \"${0%/*}/status\" || echo 0)\n");
      std::filesystem::permissions(folder / "xdg-open", std::filesystem::perms::owner_all);
    }
    const support::TemporaryFolder folder;
  };
  // Made before the server starts, for that looks for it in PATH.
  static inline std::optional<StandIn> shared;
  static void SetUpTestSuite() {
    shared.emplace();
    path = std::getenv("PATH");
    ::setenv("PATH", (shared->folder.path().string() + ":" + path).c_str(), 1);
  }
  static void TearDownTestSuite() {
    ::setenv("PATH", path.c_str(), 1);
    shared.reset();
  }
  static inline std::string path;
  const StandIn& stand = *shared;
};

TEST_F(OpeningServer, LetsTheBrowserInBesideWhoReadsTheAddress) {
  ASSERT_TRUE(comesTrue([&] { return !opened().empty(); })) << server->errors();
  EXPECT_NE(opened(), server->address());
  const std::string path = opened().substr(opened().find("/open/"));
  EXPECT_EQ(support::HTTPClient{.port = server->port()}.get(path).status, 303);
  expectFine();

  // The same again, as from the desktop: the server that is there lets in another browser.
  std::filesystem::remove(stand.folder / "opened");
  const std::string command = "serve --open --port " + std::to_string(server->port());
  ::setenv("XDG_RUNTIME_DIR", (folder / "runtime").c_str(), 1);
  const auto second = run(folder.path(), command);
  EXPECT_EQ(second.exitCode, 0) << testing::PrintToString(second.complaints);
  EXPECT_EQ(second.output, "The home screen is at " + opened() + "\n");
  EXPECT_EQ(support::HTTPClient{.port = server->port()}.get(opened().substr(opened().find("/open/"))).status, 303);

  support::writeBytes(stand.folder / "status", "3");
  const auto third = run(folder.path(), command);
  EXPECT_EQ(third.exitCode, 1);
  EXPECT_EQ(third.complaints, std::vector<std::string>{"mirune: xdg-open could not open a browser"});

  // Who cannot read the token is not let in.
  ::setenv("XDG_RUNTIME_DIR", (folder / "elsewhere").c_str(), 1);
  EXPECT_EQ(run(folder.path(), command).exitCode, 1);
  ::unsetenv("XDG_RUNTIME_DIR");
}

}  // namespace
}  // namespace program
