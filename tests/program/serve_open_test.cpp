#include "live_server.hpp"

namespace program {
namespace {

/// As long as this lives, xdg-open keeps the address in a file, and ends with the status in another.
class FakeBrowser {
 protected:
  FakeBrowser() {
    support::writeBytes(
        browser / "xdg-open",
        "#!/bin/sh\ncd \"${0%/*}\" && printf %s \"$1\" >part && mv part opened && exit $(cat status)\n");
    std::filesystem::permissions(browser / "xdg-open", std::filesystem::perms::owner_all);
    support::writeBytes(browser / "status", "0");
    ::setenv("PATH", (browser.path().string() + ":" + path_).c_str(), 1);
  }
  FakeBrowser(const FakeBrowser&) = delete;
  FakeBrowser& operator=(const FakeBrowser&) = delete;
  ~FakeBrowser() { ::setenv("PATH", path_.c_str(), 1); }

  std::string opened() const { return support::readBytes(browser / "opened"); }

  const support::TemporaryFolder browser;

 private:
  std::string path_ = std::getenv("PATH");
};

class OpeningServer : protected FakeBrowser, public LiveServer {
 protected:
  OpeningServer() : LiveServer({"--now", "2026-11-21T08:00:00Z", "--open"}) {}

  int statusOf(const std::string& address) const {
    return support::HTTPClient{.port = server->port()}.get(address.substr(address.find("/open/"))).status;
  }
  ProgramRun openAgain(const std::string& runtimeFolder) const {
    const std::string variable = "XDG_RUNTIME_DIR=" + quoted((folder / runtimeFolder).string());
    return run(folder.path(), "serve --open --port " + std::to_string(server->port()), variable);
  }
};

TEST_F(OpeningServer, LetsTheBrowserInBesideWhoReadsTheAddress) {
  ASSERT_TRUE(comesTrue([&] { return std::filesystem::exists(browser / "opened"); })) << server->errors();
  EXPECT_NE(opened(), server->address());
  EXPECT_EQ(statusOf(opened()), 303);
  expectFine();
}

TEST_F(OpeningServer, IsOpenedAgainByWhoCanReadItsToken) {
  ASSERT_TRUE(comesTrue([&] { return std::filesystem::exists(browser / "opened"); })) << server->errors();
  const auto second = openAgain("runtime");
  EXPECT_EQ(second.exitCode, 0) << testing::PrintToString(second.complaints);
  EXPECT_EQ(second.output, "The home screen is at " + opened() + "\n");
  EXPECT_EQ(statusOf(opened()), 303);

  support::writeBytes(browser / "status", "3");
  const auto third = openAgain("runtime");
  EXPECT_EQ(third.exitCode, 1);
  EXPECT_EQ(third.complaints, std::vector<std::string>{"mirune: xdg-open could not open a browser"});

  const auto stranger = openAgain("elsewhere");
  EXPECT_EQ(stranger.exitCode, 1);
  EXPECT_EQ(stranger.output, "");
}

}  // namespace
}  // namespace program
