#pragma once

#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <cctype>
#include <chrono>
#include <map>
#include <string>
#include <string_view>

namespace support {

/// A connection to a port of this machine that says exactly what it is told to.
class Connection {
 public:
  explicit Connection(int port) : socket_(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
    sockaddr_in address = {};
    address.sin_family = AF_INET;
    address.sin_port = htons(static_cast<std::uint16_t>(port));
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    isConnected_ = ::connect(socket_, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
  }
  Connection(const Connection&) = delete;
  Connection& operator=(const Connection&) = delete;
  ~Connection() { ::close(socket_); }

  bool isConnected() const { return isConnected_; }

  /// Sends as much as the other side takes; false where that is not all of it.
  bool send(std::string_view bytes) const {
    while (!bytes.empty()) {
      if (!isReady(POLLOUT, std::chrono::seconds(20))) return false;
      const ssize_t sent = ::send(socket_, bytes.data(), bytes.size(), MSG_NOSIGNAL | MSG_DONTWAIT);
      if (sent < 0) return false;
      bytes.remove_prefix(static_cast<std::size_t>(sent));
    }
    return true;
  }

  /// Reads until the other side closes, or until that text has come; what there is when the time is over.
  std::string receive(std::string_view until = {}, std::chrono::milliseconds limit = std::chrono::seconds(40)) {
    const auto deadline = std::chrono::steady_clock::now() + limit;
    while (until.empty() || received_.find(until) == std::string::npos) {
      const auto left = std::chrono::ceil<std::chrono::milliseconds>(deadline - std::chrono::steady_clock::now());
      if (left.count() <= 0 || !isReady(POLLIN, left)) break;
      char bytes[4096];
      const ssize_t size = ::recv(socket_, bytes, sizeof bytes, 0);
      hasEnded_ = size <= 0;
      if (hasEnded_) break;
      received_.append(bytes, static_cast<std::size_t>(size));
    }
    return std::exchange(received_, {});
  }
  /// Whether the last reading came to the end.
  bool hasEnded() const { return hasEnded_; }

 private:
  bool isReady(short event, std::chrono::milliseconds limit) const {
    pollfd waited = {.fd = socket_, .events = event, .revents = 0};
    return ::poll(&waited, 1, static_cast<int>(limit.count())) > 0;
  }

  int socket_;
  bool isConnected_ = false;
  bool hasEnded_ = false;
  std::string received_ = {};
};

struct HTTPReply {
  int status = 0;                                   ///< 0: there was no answer
  std::map<std::string, std::string> headers = {};  ///< by name in lower case
  std::string body = {};
};

inline HTTPReply parseReply(const std::string& text) {
  HTTPReply reply;
  const std::size_t end = text.find("\r\n\r\n");
  if (!text.starts_with("HTTP/1.1 ") || end == std::string::npos) return reply;
  reply.status = std::atoi(text.c_str() + 9);
  reply.body = text.substr(end + 4);
  for (std::size_t line = text.find("\r\n"); line < end; line = text.find("\r\n", line + 2)) {
    const std::size_t colon = text.find(": ", line);
    std::string name = text.substr(line + 2, colon - line - 2);
    std::ranges::transform(name, name.begin(), [](unsigned char each) { return std::tolower(each); });
    reply.headers[name] = text.substr(colon + 2, text.find("\r\n", colon) - colon - 2);
  }
  return reply;
}

/// A request as a browser's page sends it; what `headers` names replaces or adds to the usual headers.
struct HTTPClient {
  int port = 0;
  std::string cookie = {};

  HTTPReply ask(const std::string& method, const std::string& target, const std::string& body = {},
                std::map<std::string, std::string> headers = {}) const {
    const std::string host = "127.0.0.1:" + std::to_string(port);
    headers.insert({{"Host", host}, {"Connection", "close"}});
    if (!cookie.empty()) headers.insert({"Cookie", cookie});
    if (method != "GET")
      headers.insert({{"Origin", "http://" + host}, {"Content-Length", std::to_string(body.size())}});
    std::string request = method + " " + target + " HTTP/1.1\r\n";
    for (const auto& [name, value] : headers) request += name + ": " + value + "\r\n";
    Connection connection(port);
    connection.send(request + "\r\n" + body);
    return parseReply(connection.receive());
  }
  HTTPReply get(const std::string& target) const { return ask("GET", target); }
};

}  // namespace support
