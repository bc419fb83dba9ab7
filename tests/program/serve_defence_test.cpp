#include <list>

#include "live_server.hpp"

// What other programs of the machine, and pages of other sites, may send.

namespace program {
namespace {

using support::Connection;

class Defence : public LiveServer {
 protected:
  /// What comes back when exactly this is sent.
  support::HTTPReply raw(const std::string& bytes) const {
    Connection connection(server->port());
    connection.send(bytes);
    return support::parseReply(connection.receive());
  }
  std::string headers() const {
    return "Host: 127.0.0.1:" + std::to_string(server->port()) + "\r\nConnection: close\r\nCookie: " + page.cookie +
           "\r\n";
  }
};

TEST_F(Defence, AnswersWhatIsWrongAsSuch) {
  const std::string path = pathOf(drawnState()["widgets"][0]);
  const struct {
    const char* method;
    std::string target;
    const char* body;
    int status;
  } rows[] = {
      {"GET", "/missing", "", 404},
      {"GET", "/../etc/passwd", "", 404},
      {"GET", "/%2e%2e/etc/passwd", "", 404},
      {"GET", "/modules/../../../../../../etc/passwd", "", 404},
      {"GET", "//etc/passwd", "", 404},
      {"GET", "/etc/passwd", "", 404},
      {"GET", "http://127.0.0.1/api/state", "", 404},
      {"GET", "/api/widgets/99999/picture?scale=2", "", 404},
      {"GET", "/api/widgets/99999999999999999999/picture?scale=2", "", 404},
      {"GET", "/api/widgets", "", 405},
      {"POST", "/api/state", "", 405},
      {"POST", "/", "", 405},
      {"PUT", path, "", 405},
      {"BREW", path, "", 405},
      {"DELETE", "/api/widgets/99999", "", 404},
      {"GET", path + "/picture", "", 400},
      {"GET", path + "/picture?scale=0.4", "", 400},
      {"GET", path + "/picture?scale=4.1", "", 400},
      {"GET", path + "/picture?scale=nan", "", 400},
      {"GET", path + "/picture?scale=1e400", "", 400},
      {"GET", path + "/picture?scale=2&at=noon", "", 400},
      {"GET", "/api/at?moment=noon", "", 400},
      {"GET", "/api/preview?kind=x&family=systemSmall&scale=2", "", 400},
      {"GET", "/api/preview?kind=Mirune_Widgets2&family=x&scale=2", "", 400},
      {"POST", "/api/widgets", "", 400},
      {"POST", "/api/widgets", "[]", 400},
      {"POST", "/api/widgets", "{\"kind\": 5, \"family\": \"systemSmall\"}", 400},
      {"POST", "/api/widgets", "{\"kind\": \"x\", \"family\": \"systemSmall\"}", 400},
      {"POST", "/api/widgets", "{\"kind\": \"Mirune_Widgets2\", \"family\": \"accessoryHuge\"}", 400},
      {"POST", path + "/move", "{\"position\": \"two\"}", 400},
      {"POST", path + "/move", "{", 400},
      {"POST", path + "/tap", "{\"id\": \"\", \"date\": null}", 400},
      {"POST", path + "/tap", "{\"id\": \"x\", \"date\": \"noon\"}", 400},
      {"POST", path + "/nothing", "{}", 404},
  };
  for (const auto& row : rows) {
    const auto reply = page.ask(row.method, row.target, row.body);
    EXPECT_EQ(reply.status, row.status) << row.method << " " << row.target << " " << row.body << ": " << reply.body;
    EXPECT_NE(reply.body.find("\"error\""), std::string::npos) << row.target;
    EXPECT_EQ(reply.body.find("root:"), std::string::npos) << row.target;
  }
  EXPECT_EQ(page.ask("HEAD", "/api/state").body, "");
  expectFine();
}

TEST_F(Defence, LetsNobodyElseIn) {
  const std::string token = page.cookie.substr(page.cookie.find('=') + 1);
  const struct {
    const char* what;
    std::map<std::string, std::string> headers;
    int status;
  } rows[] = {
      {"no cookie", {{"Cookie", ""}}, 403},
      {"a wrong token", {{"Cookie", "mirune=0123456789abcdef0123456789abcdef"}}, 403},
      {"another site's page", {{"Origin", "http://evil.example"}}, 403},
      {"another site's link", {{"Sec-Fetch-Site", "cross-site"}}, 403},
      {"another name", {{"Host", "evil.example"}}, 421},
      {"another name, this port", {{"Host", "evil.example:" + std::to_string(server->port())}}, 421},
  };
  for (const auto& row : rows) {
    for (const char* target : {"/", "/api/state", "/api/events", "/missing", "/api/address"}) {
      for (const char* method : {"GET", "POST"}) {
        const auto reply = page.ask(method, target, "", row.headers);
        EXPECT_EQ(reply.status, row.status) << row.what << " " << method << " " << target;
        EXPECT_EQ(reply.body.empty(), row.status == 403) << row.what;
        EXPECT_EQ(reply.body.find(token), std::string::npos);
        EXPECT_EQ(reply.headers.count("set-cookie"), 0U);
      }
    }
  }
  const std::string start = "GET /api/state HTTP/1.1\r\n" + headers();
  EXPECT_EQ(raw(start + "\r\n").status, 200);
  EXPECT_EQ(raw(start + "Host: evil.example\r\n\r\n").status, 421) << "two names";
  EXPECT_EQ(raw(start + "Cookie: mirune=x\r\n\r\n").status, 403) << "two cookies";
  EXPECT_EQ(
      raw(start + "Origin: http://127.0.0.1:" + std::to_string(server->port()) + "\r\nOrigin: http://x\r\n\r\n").status,
      403)
      << "two origins";
}

TEST_F(Defence, RefusesWhatIsTooLargeOrNoRequest) {
  constexpr std::size_t large = 10'000'000;
  const struct {
    const char* what;
    std::string bytes;
    std::vector<int> statuses;  ///< 0: closed without an answer
  } rows[] = {
      {"a long line", "GET /" + std::string(large, 'a') + " HTTP/1.1\r\n" + headers() + "\r\n", {431, 0}},
      {"a long header", "GET / HTTP/1.1\r\n" + headers() + "X: " + std::string(large, 'a') + "\r\n\r\n", {431, 0}},
      {"a line just too long", "GET /" + std::string(9000, 'a') + " HTTP/1.1\r\n" + headers() + "\r\n", {431}},
      {"a large body",
       "POST /api/widgets HTTP/1.1\r\n" + headers() + "Content-Length: " + std::to_string(large) + "\r\n\r\n" +
           std::string(large, 'a'),
       {413}},
      {"a body of unknown length",
       "POST /api/widgets HTTP/1.1\r\n" + headers() + "Transfer-Encoding: chunked\r\n\r\n989680\r\n" +
           std::string(large, 'a'),
       {413}},
      {"a body just too large",
       "POST /api/widgets HTTP/1.1\r\n" + headers() + "Content-Length: 17000\r\n\r\n" + std::string(17000, 'a'),
       {413}},
      {"no request", "hello\r\n\r\n", {400}},
      {"noughts", std::string(100, '\0'), {400}},
      {"a secure greeting", std::string("\x16\x03\x01\x02\x00\x01\x00", 7) + std::string(500, 'x'), {400}},
      {"a negative length", "POST /api/widgets HTTP/1.1\r\n" + headers() + "Content-Length: -1\r\n\r\n", {400}},
      {"two lengths",
       "POST /api/widgets HTTP/1.1\r\n" + headers() + "Content-Length: 5\r\nContent-Length: 6\r\n\r\nabcdef",
       {400}},
  };
  for (const auto& row : rows) {
    const auto reply = raw(row.bytes);
    EXPECT_NE(std::ranges::find(row.statuses, reply.status), row.statuses.end()) << row.what << ": " << reply.status;
    expectFine();
  }
}

TEST_F(Defence, IsHeldUpByNobody) {
  std::list<Connection> silent;
  const auto connect = [&](int count) {
    for (int each = 0; each < count; ++each) silent.emplace_back(server->port());
  };
  connect(20);
  silent.front().send("GET /api/sta");
  silent.back().send("POST /api/widgets HTTP/1.1\r\n" + headers() + "Content-Length: 100\r\n\r\n{");
  const auto start = std::chrono::steady_clock::now();
  expectFine();
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5));
  // More than there may be: they are sent away within their ten seconds, and others have their turn.
  connect(200);
  EXPECT_TRUE(comesTrue([&] { return page.get("/api/state").status == 200; }, std::chrono::seconds(30)));
  for (Connection& each : silent) {
    each.receive();
    EXPECT_TRUE(each.hasEnded());
  }
  expectFine();
}

TEST_F(Defence, AnswersManyAtOnce) {
  for (int round = 0; round < 3; ++round) {
    std::list<Connection> connections;
    for (int each = 0; each < 60; ++each) connections.emplace_back(server->port());
    for (const Connection& each : connections) each.send("GET /api/state HTTP/1.1\r\n" + headers() + "\r\n");
    int answered = 0;
    for (Connection& each : connections) answered += support::parseReply(each.receive()).status == 200 ? 1 : 0;
    EXPECT_EQ(answered, 60);
  }
  expectFine();
}

}  // namespace
}  // namespace program
