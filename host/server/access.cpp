#include "host/server/access.hpp"

#include <cstdio>

namespace host {

namespace {

constexpr std::string_view openPath = "/open/";
constexpr std::string_view addressPath = "/api/address";
constexpr std::string_view cookieName = "mirune=";

HTTPResponse refused(int status, std::string body = {}) {
  return {.status = status, .contentType = body.empty() ? "" : "text/plain; charset=utf-8", .body = std::move(body)};
}

}  // namespace

std::string newToken(const foundation::RandomSource& random) {
  char text[33] = {};
  std::snprintf(text, sizeof text, "%016llx%016llx", static_cast<unsigned long long>(random()),
                static_cast<unsigned long long>(random()));
  return text;
}

bool isEqualInConstantTime(std::string_view a, std::string_view b) {
  unsigned difference = a.size() == b.size() ? 0 : 1;
  for (std::size_t i = 0; i < a.size(); ++i) {
    const char other = b.empty() ? '\0' : b[i % b.size()];
    difference |= static_cast<unsigned>(static_cast<unsigned char>(a[i]) ^ static_cast<unsigned char>(other));
  }
  return difference == 0;
}

Access::Access(int port, std::string token, foundation::RandomSource random)
    : port_(port), token_(std::move(token)), random_(std::move(random)) {}

std::string Access::origin() const {
  return "http://127.0.0.1:" + std::to_string(port_);
}

std::string Access::newAddress() {
  const std::string key = newToken(random_);
  constexpr std::size_t mostKeys = 16;
  if (oneTimeKeys_.size() >= mostKeys) oneTimeKeys_.clear();
  oneTimeKeys_.insert(key);
  return origin() + std::string(openPath) + key;
}

bool Access::hasCookie(const HTTPRequest& request) const {
  std::string_view rest = request.cookie;
  while (!rest.empty()) {
    const std::string_view pair = rest.substr(0, rest.find(';'));
    rest.remove_prefix(std::min(rest.size(), pair.size() + 1));
    const std::string_view cookie = pair.substr(std::min(pair.find_first_not_of(' '), pair.size()));
    if (cookie.starts_with(cookieName) && isEqualInConstantTime(cookie.substr(cookieName.size()), token_)) return true;
  }
  return false;
}

std::optional<HTTPResponse> Access::answer(const HTTPRequest& request) {
  const std::string port = ":" + std::to_string(port_);
  if (request.host != "127.0.0.1" + port && request.host != "localhost" + port) {
    return refused(421, "This home screen is at " + origin() + "/\n");
  }
  const bool isReading = request.method == "GET" || request.method == "HEAD";
  const bool isOwnOrigin = request.origin == "http://" + request.host;
  if (!request.origin.empty() && !isOwnOrigin) return refused(403);
  if (!request.fetchSite.empty() && request.fetchSite != "same-origin" && !(isReading && request.fetchSite == "none")) {
    return refused(403);
  }
  // The program itself asks for an address to open; it can read the token's file.
  if (request.path == addressPath && request.method == "POST") {
    if (!isEqualInConstantTime(request.authorization, "Bearer " + token_)) return refused(403);
    return HTTPResponse{.contentType = "text/plain; charset=utf-8", .body = newAddress() + "\n"};
  }
  if (request.path.starts_with(openPath)) {
    if (!isReading || oneTimeKeys_.erase(request.path.substr(openPath.size())) == 0) return refused(403);
    return HTTPResponse{.status = 303,
                        .headers = {{"Location", "/"},
                                    {"Set-Cookie", std::string(cookieName) + token_ +
                                                       "; Path=/; HttpOnly; SameSite=Strict; Max-Age=31536000"}}};
  }
  if (!hasCookie(request)) return refused(403);
  if (!isReading && !isOwnOrigin) return refused(403);
  return std::nullopt;
}

}  // namespace host
