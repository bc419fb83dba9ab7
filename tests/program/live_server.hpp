#pragma once

#include "server.hpp"

namespace program {

/// The live home screen of a demo container on the morning of 2026-11-21, and a page that was let in.
class LiveServer : public testing::Test {
 protected:
  explicit LiveServer(const std::vector<std::string>& options = {"--now", "2026-11-21T08:00:00Z"}) {
    writeDemo("container");
    server.emplace(folder, options);
    EXPECT_NE(server->address(), "") << server->errors();
    page = server->letIn();
  }

  void writeDemo(const std::string& name) const {
    EXPECT_EQ(run(folder.path(), "demo " + name + " --now 2026-11-21T08:00:00Z --timezone Europe/Berlin").exitCode, 0);
  }

  nlohmann::json state() const {
    const auto reply = page.get("/api/state");
    EXPECT_EQ(reply.status, 200);
    auto state = nlohmann::json::parse(reply.body, nullptr, false);
    return state.is_object() ? state : nlohmann::json{{"widgets", nlohmann::json::array()}, {"version", 0}};
  }
  /// The state once every widget has been drawn and has no trouble.
  nlohmann::json drawnState() const {
    nlohmann::json drawn;
    EXPECT_TRUE(comesTrue([&] {
      drawn = state();
      return !drawn["widgets"].empty() && std::ranges::all_of(drawn["widgets"], [](const nlohmann::json& each) {
        return each["picture"].is_string() && each["failure"].is_null();
      });
    })) << drawn.dump();
    return drawn;
  }
  nlohmann::json widget(const nlohmann::json& state, const std::string& shortName, const std::string& family) const {
    for (const auto& each : state["widgets"]) {
      if (each["shortName"] == shortName && each["family"] == family) return each;
    }
    ADD_FAILURE() << "no " << shortName << " " << family;
    return {};
  }
  static std::string pathOf(const nlohmann::json& widget) {
    return "/api/widgets/" + std::to_string(widget.value("id", 0));
  }
  static bool isPNG(const support::HTTPReply& reply) {
    return reply.status == 200 && reply.headers.at("content-type") == "image/png" &&
           reply.body.starts_with("\x89PNG\r\n\x1a\n") && reply.body.find("IEND") != std::string::npos;
  }
  /// The server is still there and answers.
  void expectFine() const {
    EXPECT_EQ(page.get("/api/state").status, 200);
    EXPECT_TRUE(server->isRunning());
  }

  const support::TemporaryFolder folder;
  std::optional<Server> server;
  support::HTTPClient page;
};

}  // namespace program
