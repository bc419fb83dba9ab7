#pragma once

#include <boost/asio/awaitable.hpp>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace host {

/// A request as far as this server looks at it. Texts are as they came; absent headers are empty.
struct HTTPRequest {
  std::string method = {};                        ///< "GET"
  std::string path = {};                          ///< "/api/state", percent-encoding as it came
  std::map<std::string, std::string> query = {};  ///< decoded
  std::string host = {};
  std::string origin = {};
  std::string fetchSite = {};  ///< Sec-Fetch-Site
  std::string cookie = {};
  std::string authorization = {};
  std::string body = {};
};

struct HTTPResponse {
  int status = 200;
  std::string contentType = {};
  std::string body = {};
  std::vector<std::pair<std::string, std::string>> headers = {};
  /// Instead of a body: events, each as soon as it is there, for as long as the other side listens.
  std::function<boost::asio::awaitable<std::string>()> nextEvent = nullptr;
};

/// Path and query of a request's target; the pairs of the query decoded ("+" is a blank).
std::pair<std::string, std::map<std::string, std::string>> splitTarget(const std::string& target);

}  // namespace host
