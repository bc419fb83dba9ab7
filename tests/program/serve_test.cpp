#include <random>

#include "live_server.hpp"

namespace program {
namespace {

using nlohmann::json;
using support::Connection;

TEST_F(LiveServer, LetsABrowserInOnce) {
  support::HTTPClient other{.port = server->port()};
  EXPECT_EQ(other.get(server->openPath()).status, 403);
  const auto index = page.get("/");
  EXPECT_EQ(index.status, 200);
  EXPECT_EQ(index.headers.at("content-type"), "text/html; charset=utf-8");
  EXPECT_EQ(index.headers.at("content-security-policy"), "default-src 'self'; frame-ancestors 'none'; base-uri 'none'");
  EXPECT_EQ(page.get("/style.css").headers.at("content-type"), "text/css; charset=utf-8");
}

TEST_F(LiveServer, GivesAnAddressToWhoCanReadItsToken) {
  const auto file = folder / ("runtime/mirune/token-" + std::to_string(server->port()));
  EXPECT_EQ(std::filesystem::status(file).permissions(), std::filesystem::perms(0600));
  const std::string token = support::readBytes(file).substr(0, 32);
  const auto reply = support::HTTPClient{.port = server->port()}.ask("POST", "/api/address", "",
                                                                     {{"Authorization", "Bearer " + token}});
  ASSERT_EQ(reply.status, 200);
  const std::string path = reply.body.substr(0, reply.body.find('\n')).substr(reply.body.find("/open/"));
  EXPECT_EQ(support::HTTPClient{.port = server->port()}.get(path).status, 303);
}

TEST_F(LiveServer, DrawsEveryWidget) {
  const json drawn = drawnState();
  EXPECT_EQ(drawn["widgets"].size(), 12U);
  EXPECT_EQ(drawn["timeZone"], "Europe/Berlin");
  EXPECT_EQ(drawn["catalogue"].size(), 8U);
  for (const json& each : drawn["widgets"]) {
    const std::string picture = pathOf(each) + "/picture?picture=" + each["picture"].get<std::string>() + "&scale=";
    EXPECT_TRUE(isPNG(page.get(picture + "2"))) << each["shortName"];
    EXPECT_NE(page.get(picture + "1").body, page.get(picture + "2").body);
    EXPECT_EQ(page.get(picture + "2").body, page.get(picture + "2.00").body);
    EXPECT_TRUE(isPNG(page.get(pathOf(each) + "/picture?scale=0.5&at=2026-11-22T08:00:00Z"))) << each["shortName"];
  }
  const json later = json::parse(page.get("/api/at?moment=2026-11-22T08%3A00%3A00Z").body, nullptr, false);
  ASSERT_TRUE(later.is_object());
  EXPECT_EQ(later["moment"], "2026-11-22T08:00:00Z");
  EXPECT_EQ(later["widgets"].size(), 12U);
  EXPECT_TRUE(isPNG(page.get("/api/preview?kind=Mirune_Widgets2&family=systemMedium&scale=1")));
  const json why = json::parse(page.get("/api/why").body, nullptr, false);
  ASSERT_TRUE(why.is_object());
  EXPECT_EQ(why["widgets"].size(), 12U);
  EXPECT_EQ(why["extension"]["running"], true);
  EXPECT_FALSE(why["files"].empty());
}

TEST_F(LiveServer, TicksOffAnItem) {
  const json before = widget(drawnState(), "tasks", "systemSmall");
  const auto box = std::ranges::find(before["meaning"], "checkbox", [](const json& each) { return each["role"]; });
  ASSERT_NE(box, before["meaning"].end()) << before.dump();
  ASSERT_EQ((*box)["checked"], false);
  const std::string id = (*box)["id"];
  const json body = {{"id", id}, {"date", (*box)["date"]}};
  EXPECT_EQ(page.ask("POST", pathOf(before) + "/tap", body.dump()).status, 204);
  for (const char* number : {"", "2"}) {
    const std::string file = std::string("container/interactive-widgets-state") + number + ".json";
    EXPECT_NE(support::readBytes(folder / file).find(id), std::string::npos) << file;
  }
  EXPECT_TRUE(comesTrue([&] {
    const json after = widget(state(), "tasks", "systemSmall");
    return after["picture"] != before["picture"] &&
           std::ranges::none_of(after["meaning"], [&](const json& each) { return each.value("id", "") == id; });
  })) << state().dump();
}

TEST_F(LiveServer, ArrangesWidgets) {
  const auto order = [&](const std::string& place) {
    std::vector<int> ids;
    const json now = state();
    for (const json& each : now["widgets"]) {
      if (each["place"] != place) continue;
      EXPECT_EQ(each["position"], ids.size());
      ids.push_back(each["id"]);
    }
    return ids;
  };
  const auto add = [&](const char* kind, const char* family) {
    const auto reply = page.ask("POST", "/api/widgets", json{{"kind", kind}, {"family", family}}.dump());
    const json answer = json::parse(reply.body, nullptr, false);
    return std::pair(reply.status, answer.value("id", 0));
  };
  const std::vector<int> first = order("home");
  ASSERT_EQ(first.size(), 8U);
  const auto [status, added] = add("Mirune_Widgets2", "systemMedium");
  EXPECT_EQ(status, 201);
  std::vector<int> expected = first;
  expected.push_back(added);
  EXPECT_EQ(order("home"), expected);
  const std::string path = "/api/widgets/" + std::to_string(added);

  EXPECT_EQ(page.ask("POST", path + "/move", R"({"position": 2})").status, 204);
  expected.insert(expected.begin() + 2, added);
  expected.pop_back();
  EXPECT_EQ(order("home"), expected);
  for (const char* position : {"-5", "1000000"}) {
    EXPECT_EQ(page.ask("POST", path + "/move", std::string("{\"position\": ") + position + "}").status, 204);
    EXPECT_EQ(order("home").size(), 9U);
  }
  EXPECT_EQ(page.ask("DELETE", path).status, 204);
  EXPECT_EQ(order("home"), first);
  for (const char* action : {"", "/move", "/tap"}) {
    const std::string method = *action == '\0' ? "DELETE" : "POST";
    EXPECT_EQ(page.ask(method, path + action, R"({"position": 0, "id": "x", "date": null})").status, 404) << action;
  }
  EXPECT_EQ(page.get(path + "/picture?scale=2").status, 404);

  for (const auto& [kind, family] : {std::pair{"Mirune_Widgets4", "accessoryInline"},
                                     {"Mirune_Widgets2", "accessoryCircular"},
                                     {"Mirune_Widgets4", "accessoryRectangular"}}) {
    EXPECT_EQ(add(kind, family).first, 409) << family;
  }
  EXPECT_EQ(page.ask("DELETE", "/api/widgets/" + std::to_string(order("lock").back())).status, 204);
  EXPECT_EQ(add("Mirune_Widgets4", "accessoryRectangular").first, 201);
  EXPECT_EQ(order("lock").size(), 4U);

  drawnState();
  const std::vector<int> last = order("lock");
  EXPECT_EQ(server->stop(), 0);
  server.emplace(folder);
  page = server->letIn();
  EXPECT_EQ(order("home"), first) << "after another start";
  EXPECT_EQ(order("lock"), last);
}

TEST_F(LiveServer, FollowsItsContainer) {
  drawnState();
  std::filesystem::create_directories(folder / "empty");
  writeDemo("other");
  const auto container = folder / "container";
  const auto file = container / "events.json";
  const auto replace = [&](const char* by) {
    std::filesystem::rename(container, folder / (std::string("was-") + by));
    std::filesystem::rename(folder / by, container);
  };
  const auto close = [](const auto& path) { std::filesystem::permissions(path, std::filesystem::perms::none); };
  const auto open = [](const auto& path) { std::filesystem::permissions(path, std::filesystem::perms::owner_all); };
  const struct {
    const char* what;
    std::function<void()> change;
    bool hasEvents;
  } steps[] = {
      {"an empty folder instead", [&] { replace("empty"); }, false},
      {"the demo again", [&] { replace("other"); }, true},
      {"the file gone", [&] { std::filesystem::remove(file); }, false},
      {"the file back", [&] { std::filesystem::rename(folder / "was-empty/events.json", file); }, true},
      {"the file closed", [&] { close(file); }, false},
      {"the file open", [&] { open(file); }, true},
      {"the folder closed", [&] { close(container); }, false},
      {"the folder open", [&] { open(container); }, true},
      {"all gone", [&] { std::filesystem::remove_all(container); }, false},
      {"all back", [&] { writeDemo("container"); }, true},
  };
  for (const auto& [what, change, hasEvents] : steps) {
    change();
    EXPECT_TRUE(comesTrue([&] {
      const std::string meaning = widget(state(), "events", "systemMedium")["meaning"].dump();
      return meaning.contains("No more events today") != hasEvents;
    })) << what;
  }

  const auto picture = [](const json& of) { return of["widgets"][0]["picture"]; };
  const json before = drawnState();
  support::writeBytes(container / "icons/cat-circle_birthday.svg",
                      R"(<svg xmlns="http://www.w3.org/2000/svg" width="40" height="40"/>)");
  EXPECT_TRUE(comesTrue([&] { return picture(state()) != picture(before); })) << "an icon by a name that pictures know";
}

TEST_F(LiveServer, TellsOfChanges) {
  drawnState();
  Connection events(server->port());
  ASSERT_TRUE(events.send("GET /api/events HTTP/1.1\r\nHost: 127.0.0.1:" + std::to_string(server->port()) +
                          "\r\nCookie: " + page.cookie + "\r\n\r\n"));
  const std::string first = events.receive("}\n\n");
  EXPECT_NE(first.find("Content-Type: text/event-stream\r\n"), std::string::npos) << first;
  const auto versionOf = [](const std::string& event) {
    const std::size_t begin = event.find("event: state\ndata: {\"version\": ");
    return begin == std::string::npos ? -1 : std::atoi(event.c_str() + begin + 31);
  };
  EXPECT_GT(versionOf(first), 0) << first;
  EXPECT_EQ(page.ask("POST", "/api/widgets", R"({"kind": "Mirune_Widgets2", "family": "systemMedium"})").status, 201);
  const std::string second = events.receive("}\n\n");
  EXPECT_GT(versionOf(second), versionOf(first)) << second;
  EXPECT_GE(state()["version"].get<int>(), versionOf(second));
}

TEST_F(LiveServer, OutlivesItsExtension) {
  const json drawn = drawnState();
  std::mt19937 random(20261121);
  int killed = 0;
  std::map<int, int> statuses;
  for (int round = 0; round < 20; ++round) {
    // What is asked meanwhile changes from round to round, and so does the moment within it.
    const auto kill = [&] {
      for (const pid_t each : server->extensions()) killed += ::kill(each, SIGKILL) == 0 ? 1 : 0;
    };
    std::jthread other([&] {
      for (std::size_t at = 0; at < 4; ++at) {
        const auto index = (static_cast<std::size_t>(round) * 5 + at) % drawn["widgets"].size();
        const std::string scale = std::to_string(1 + 0.01 * (round + 1));
        ++statuses[page.get(pathOf(drawn["widgets"][index]) + "/picture?scale=" + scale).status];
        if (round % 4 == 0) page.ask("POST", "/api/widgets", R"({"kind": "Mirune_Widgets2", "family": "systemSmall"})");
      }
    });
    const std::chrono::milliseconds pause(random() % 80);
    comesTrue(
        [&, start = std::chrono::steady_clock::now()] { return std::chrono::steady_clock::now() - start >= pause; });
    const int before = killed;
    comesTrue([&] { return kill(), killed > before; }, std::chrono::seconds(5));
    EXPECT_EQ(page.get("/api/state").status, 200);
  }
  EXPECT_GE(killed, 20);
  for (const auto& [status, count] : statuses) {
    EXPECT_TRUE(status == 200 || status == 502) << status << ": " << count << " times";
  }
  const json after = drawnState();
  EXPECT_GT(after["widgets"].size(), drawn["widgets"].size());
  for (const json& each : after["widgets"]) EXPECT_TRUE(isPNG(page.get(pathOf(each) + "/picture?scale=2")));
  EXPECT_LE(server->extensions().size(), 1U);
  EXPECT_TRUE(server->isRunning());
}

TEST_F(LiveServer, EndsWhenItIsToldTo) {
  Connection events(server->port());
  ASSERT_TRUE(events.send("GET /api/events HTTP/1.1\r\nHost: 127.0.0.1:" + std::to_string(server->port()) +
                          "\r\nCookie: " + page.cookie + "\r\n\r\n"));
  EXPECT_NE(events.receive("}\n\n"), "");
  const auto extensions = server->extensions();
  EXPECT_EQ(server->stop(SIGTERM), 0);
  for (const pid_t each : extensions) EXPECT_NE(::kill(each, 0), 0);
  server.emplace(folder);
  EXPECT_EQ(server->stop(SIGINT), 0);
}

TEST_F(LiveServer, EndsWhileItsExtensionHangs) {
  const json drawn = drawnState();
  const auto extensions = server->extensions();
  ASSERT_EQ(extensions.size(), 1U);
  ASSERT_EQ(::kill(extensions.front(), SIGSTOP), 0);
  Connection waiting(server->port());
  ASSERT_TRUE(waiting.send("GET " + pathOf(drawn["widgets"][0]) + "/picture?scale=1.5 HTTP/1.1\r\nHost: 127.0.0.1:" +
                           std::to_string(server->port()) + "\r\nCookie: " + page.cookie + "\r\n\r\n"));
  const auto start = std::chrono::steady_clock::now();
  EXPECT_EQ(page.get("/api/state").status, 200);
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5));
  EXPECT_EQ(server->stop(), 0);
  EXPECT_NE(::kill(extensions.front(), 0), 0);
}

TEST_F(LiveServer, ReadsAgainWhenItIsToldTo) {
  drawnState();
  const auto lastRequest = [&] {
    const json why = json::parse(page.get("/api/why").body, nullptr, false);
    return why.is_object() ? why["widgets"][0]["lastRequest"] : json();
  };
  const json before = lastRequest();
  ASSERT_TRUE(before.is_string());
  EXPECT_TRUE(comesTrue([&] {
    ::kill(server->id(), SIGHUP);
    return lastRequest() != before;
  }));
  drawnState();
}

TEST_F(LiveServer, SaysThatAPortIsTaken) {
  const auto second = run(folder.path(), "serve --port " + std::to_string(server->port()));
  EXPECT_EQ(second.exitCode, 1);
  EXPECT_EQ(second.output, "");
  EXPECT_EQ(second.complaints, std::vector<std::string>{"mirune: port " + std::to_string(server->port()) +
                                                        ": Address already in use (--port 0 takes any that is free)"});
  expectFine();
}

class FastServer : public LiveServer {
 protected:
  FastServer() : LiveServer({"--now", "2026-11-21T18:00:00Z", "--speed", "3600"}) {}
};

TEST_F(FastServer, PassesMidnight) {
  const json before = widget(drawnState(), "calendar", "systemSmall");
  json after;
  EXPECT_TRUE(comesTrue([&] {
    after = widget(state(), "calendar", "systemSmall");
    return after["picture"] != before["picture"];
  }));
  EXPECT_GE(after["entryDate"], "2026-11-21T23:00:00Z") << "midnight in Berlin";
  const json now = state();
  EXPECT_GE(now["now"], "2026-11-21T23:00:00Z");
  EXPECT_EQ(now["speed"], 3600);
}

}  // namespace
}  // namespace program
