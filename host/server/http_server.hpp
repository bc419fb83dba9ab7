#pragma once

#include <boost/asio/ip/tcp.hpp>
#include <expected>
#include <functional>
#include <string>

#include "host/server/http_message.hpp"

namespace host {

/// Answers requests on a port of the loopback address.
///
/// Nobody holds it up: a request line with its headers may have 8 KiB and a body 16 KiB, both have to be there within
/// ten seconds and an answer has to be taken within ten, a connection that is not used ends after thirty; there are at
/// most 64 at a time, of which 16 listen to events. What is beyond is refused, or closed where even that would cost.
class HTTPServer {
 public:
  using Handler = std::function<boost::asio::awaitable<HTTPResponse>(HTTPRequest)>;

  /// Takes the port, 0 for any that is free. The error is one line.
  static std::expected<HTTPServer, std::string> listening(const boost::asio::any_io_executor& executor, int port);

  int port() const { return acceptor_.local_endpoint().port(); }
  /// Begins to answer; ends with the executor.
  void start(Handler handler);

 private:
  explicit HTTPServer(boost::asio::ip::tcp::acceptor acceptor) : acceptor_(std::move(acceptor)) {}

  boost::asio::ip::tcp::acceptor acceptor_;
};

}  // namespace host
