#include "host/server/access.hpp"

#include <gtest/gtest.h>

namespace host {
namespace {

const std::string token = "0123456789abcdef0123456789abcdef";
const std::string cookie = "mirune=" + token;
constexpr int port = 4127;

Access access() {
  return {port, token, [number = std::uint64_t(0)]() mutable { return ++number; }};
}

HTTPRequest fromPage(const std::string& method) {
  return {.method = method, .path = "/api/state", .host = "127.0.0.1:4127", .cookie = cookie};
}

/// The status, 0 where the request may pass.
int statusOf(Access& access, const HTTPRequest& request) {
  const auto answer = access.answer(request);
  return answer ? answer->status : 0;
}

void expectNoToken(const HTTPResponse& answer) {
  EXPECT_EQ(answer.body.find(token), std::string::npos);
  for (const auto& [name, value] : answer.headers) {
    EXPECT_EQ(value.find(token) != std::string::npos, name == "Set-Cookie") << name;
  }
}

TEST(Access, IsForItsOwnNamesOnly) {
  const struct {
    const char* host;
    int status;
  } rows[] = {
      {"127.0.0.1:4127", 0},        {"localhost:4127", 0},        {"", 421},
      {"127.0.0.1", 421},           {"localhost", 421},           {"127.0.0.1:80", 421},
      {"127.0.0.1:41270", 421},     {"127.0.0.1:4127 ", 421},     {"evil.example:4127", 421},
      {"localhost.evil:4127", 421}, {"evil.localhost:4127", 421}, {"[::1]:4127", 421},
      {"127.0.0.2:4127", 421},      {"LOCALHOST.:4127", 421},     {"127.0.0.1:4127,evil.example", 421},
      {"127.1:4127", 421},          {"127.0.0.1:4127@evil", 421}, {"evil@127.0.0.1:4127", 421},
  };
  for (const auto& row : rows) {
    Access checked = access();
    HTTPRequest request = fromPage("GET");
    request.host = row.host;
    EXPECT_EQ(statusOf(checked, request), row.status) << row.host;
    if (row.status == 0) continue;
    // Not even a one-time address, and the program's own request, get further.
    request.path = checked.newAddress().substr(checked.origin().size());
    const auto answer = checked.answer(request);
    ASSERT_TRUE(answer) << row.host;
    EXPECT_EQ(answer->status, 421) << row.host;
    EXPECT_NE(answer->body.find("http://127.0.0.1:4127/"), std::string::npos);
    EXPECT_EQ(answer->body.find("/open/"), std::string::npos);
    EXPECT_TRUE(answer->headers.empty());
    expectNoToken(*answer);
  }
}

TEST(Access, IsForItsOwnPageOnly) {
  const struct {
    const char* origin;
    const char* fetchSite;
    int reading;
    int writing;
  } rows[] = {
      {"", "", 0, 403},
      {"http://127.0.0.1:4127", "", 0, 0},
      {"http://127.0.0.1:4127", "same-origin", 0, 0},
      {"", "same-origin", 0, 403},
      {"", "none", 0, 403},
      {"http://127.0.0.1:4127", "none", 0, 403},
      {"", "cross-site", 403, 403},
      {"", "same-site", 403, 403},
      {"http://127.0.0.1:4127", "cross-site", 403, 403},
      {"http://127.0.0.1:4127", "same-site", 403, 403},
      {"http://127.0.0.1:4127", "unheard-of", 403, 403},
      {"null", "", 403, 403},
      {"null", "same-origin", 403, 403},
      {"http://evil.example", "", 403, 403},
      {"http://127.0.0.1:8080", "", 403, 403},
      {"https://127.0.0.1:4127", "", 403, 403},
      {"http://localhost:4127", "", 403, 403},  // the other name is another origin
      {"http://127.0.0.1:4127.evil.example", "", 403, 403},
  };
  for (const auto& row : rows) {
    for (const std::string method : {"GET", "HEAD", "POST", "DELETE", "PUT", "get"}) {
      Access checked = access();
      HTTPRequest request = fromPage(method);
      request.origin = row.origin;
      request.fetchSite = row.fetchSite;
      const bool isReading = method == "GET" || method == "HEAD";
      EXPECT_EQ(statusOf(checked, request), isReading ? row.reading : row.writing)
          << method << " '" << row.origin << "' " << row.fetchSite;
    }
  }
  Access checked = access();
  HTTPRequest request = fromPage("POST");
  request.host = "localhost:4127";
  request.origin = "http://localhost:4127";
  EXPECT_EQ(statusOf(checked, request), 0);
}

TEST(Access, TakesTheCookieAmongOthers) {
  const struct {
    std::string cookie;
    int status;
  } rows[] = {
      {cookie, 0},
      {"a=b; " + cookie, 0},
      {cookie + "; a=b", 0},
      {"a=b;" + cookie + ";c=d", 0},
      {"mirune=wrong; " + cookie, 0},
      {";;; " + cookie, 0},
      {"", 403},
      {"mirune=", 403},
      {"mirune", 403},
      {token, 403},
      {"mirune=" + token.substr(1), 403},
      {"mirune=" + token.substr(0, 31), 403},
      {cookie + "0", 403},
      {cookie + token, 403},
      {"mirune=ffffffffffffffffffffffffffffffff", 403},
      {"x" + cookie, 403},
      {"Mirune=" + token, 403},
      {"a=" + cookie, 403},
      {"a=b " + cookie, 403},
  };
  for (const auto& row : rows) {
    Access checked = access();
    HTTPRequest request = fromPage("GET");
    request.cookie = row.cookie;
    const auto answer = checked.answer(request);
    EXPECT_EQ(answer ? answer->status : 0, row.status) << row.cookie;
    EXPECT_EQ(answer.value_or(HTTPResponse()).body, "") << row.cookie;
  }
}

TEST(Access, LetsABrowserInOnce) {
  Access checked = access();
  const std::string first = checked.newAddress();
  const std::string second = checked.newAddress();
  ASSERT_NE(first, second);
  ASSERT_TRUE(first.starts_with("http://127.0.0.1:4127/open/")) << first;
  HTTPRequest request = {.method = "POST", .path = first.substr(checked.origin().size()), .host = "127.0.0.1:4127"};
  EXPECT_EQ(statusOf(checked, request), 403);
  request.method = "GET";
  request.fetchSite = "cross-site";
  EXPECT_EQ(statusOf(checked, request), 403);
  request.fetchSite = "none";

  const auto answer = checked.answer(request);
  ASSERT_TRUE(answer);
  EXPECT_EQ(answer->status, 303);
  EXPECT_EQ(answer->body, "");
  expectNoToken(*answer);
  const std::map<std::string, std::string> headers(answer->headers.begin(), answer->headers.end());
  EXPECT_EQ(headers.at("Location"), "/");
  EXPECT_TRUE(headers.at("Set-Cookie").starts_with(cookie + ";"));
  for (const char* attribute : {"; HttpOnly", "; SameSite=Strict", "; Path=/"}) {
    EXPECT_NE(headers.at("Set-Cookie").find(attribute), std::string::npos) << attribute;
  }

  EXPECT_EQ(statusOf(checked, request), 403) << "a second time";
  for (const char* path : {"/open/", "/open", "/open/x", "/open//", "/open/../api/state"}) {
    request.path = path;
    EXPECT_EQ(statusOf(checked, request), 403) << path;
  }
  request.path = second.substr(checked.origin().size());
  EXPECT_EQ(statusOf(checked, request), 303) << "each address lets in one";
}

TEST(Access, GivesAnAddressToWhoCanReadTheToken) {
  const struct {
    const char* method;
    std::string authorization;
    int status;
  } rows[] = {
      {"POST", "Bearer " + token, 200},
      {"POST", "bearer " + token, 403},
      {"POST", "Bearer " + token + " ", 403},
      {"POST", "Bearer ", 403},
      {"POST", token, 403},
      {"POST", "", 403},
      {"GET", "Bearer " + token, 403},
  };
  for (const auto& row : rows) {
    Access checked = access();
    HTTPRequest request = {
        .method = row.method, .path = "/api/address", .host = "127.0.0.1:4127", .authorization = row.authorization};
    const auto answer = checked.answer(request);
    ASSERT_TRUE(answer) << row.authorization;
    EXPECT_EQ(answer->status, row.status) << row.method << " " << row.authorization;
    expectNoToken(*answer);
    if (row.status != 200) {
      EXPECT_EQ(answer->body, "");
      continue;
    }
    const std::string address = answer->body.substr(0, answer->body.find('\n'));
    request = {.method = "GET", .path = address.substr(checked.origin().size()), .host = "127.0.0.1:4127"};
    EXPECT_EQ(statusOf(checked, request), 303) << address;
    // The bearer opens nothing but this.
    request = {.method = "GET", .path = "/api/state", .host = "127.0.0.1:4127", .authorization = row.authorization};
    EXPECT_EQ(statusOf(checked, request), 403);
  }
}

TEST(Access, KeepsOnlySoManyAddresses) {
  Access checked = access();
  const std::string first = checked.newAddress();
  std::string last;
  for (int count = 0; count < 1000; ++count) last = checked.newAddress();
  EXPECT_EQ(statusOf(checked, {.method = "GET", .path = first.substr(21), .host = "127.0.0.1:4127"}), 403);
  EXPECT_EQ(statusOf(checked, {.method = "GET", .path = last.substr(21), .host = "127.0.0.1:4127"}), 303);
}

}  // namespace
}  // namespace host
