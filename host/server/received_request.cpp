#include "host/server/received_request.hpp"

#include <string>

namespace host {

namespace http = boost::beast::http;

namespace {

std::string textOf(const auto& request, auto field) {
  // Twice the same header could be read in two ways.
  return request.count(field) == 1 ? std::string(request[field]) : std::string();
}

}  // namespace

HTTPRequest requestOf(const http::request<http::string_body>& received) {
  auto [path, query] = splitTarget(std::string(received.target()));
  return {.method = std::string(received.method_string()),
          .path = std::move(path),
          .query = std::move(query),
          .host = textOf(received, http::field::host),
          .origin = received.count(http::field::origin) > 1 ? "null" : textOf(received, http::field::origin),
          .fetchSite = std::string(received["Sec-Fetch-Site"]),
          .cookie = textOf(received, http::field::cookie),
          .authorization = textOf(received, http::field::authorization),
          .body = received.body()};
}

}  // namespace host
