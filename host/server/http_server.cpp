#include "host/server/http_server.hpp"

#include <array>
#include <boost/asio/co_spawn.hpp>
#include <boost/asio/detached.hpp>
#include <boost/asio/experimental/awaitable_operators.hpp>
#include <boost/asio/redirect_error.hpp>
#include <boost/asio/steady_timer.hpp>
#include <boost/asio/use_awaitable.hpp>
#include <boost/beast/core.hpp>
#include <boost/beast/http.hpp>
#include <memory>

#include "host/server/received_request.hpp"

namespace host {

namespace asio = boost::asio;
namespace beast = boost::beast;
namespace http = beast::http;
using asio::ip::tcp;
using namespace asio::experimental::awaitable_operators;

namespace {

constexpr std::size_t largestHeader = 8UL * 1024;
constexpr std::size_t largestBody = 16UL * 1024;
constexpr std::chrono::seconds patience(10);
constexpr std::chrono::seconds idlePatience(30);
constexpr int mostConnections = 64;
constexpr int mostListeners = 16;

/// How many there are of something, for as long as this lives.
class Counted {
 public:
  explicit Counted(int& count) : count_(count) { ++count_; }
  Counted(const Counted&) = delete;
  Counted& operator=(const Counted&) = delete;
  ~Counted() { --count_; }

 private:
  int& count_;
};

struct Load {
  int connections = 0;
  int listeners = 0;
};

void addSafeHeaders(auto& response) {
  response.set("Content-Security-Policy", "default-src 'self'; frame-ancestors 'none'; base-uri 'none'");
  response.set("X-Content-Type-Options", "nosniff");
  response.set("Referrer-Policy", "no-referrer");
  response.set("Cross-Origin-Resource-Policy", "same-origin");
  response.set("Cross-Origin-Opener-Policy", "same-origin");
  response.set(http::field::cache_control, "no-store");
}

asio::awaitable<void> write(beast::tcp_stream& stream, const HTTPResponse& answer, bool isHead, bool keepsAlive) {
  http::response<http::string_body> response;
  response.version(11);
  response.result(static_cast<unsigned>(answer.status));
  addSafeHeaders(response);
  if (!answer.contentType.empty()) response.set(http::field::content_type, answer.contentType);
  for (const auto& [name, value] : answer.headers) response.set(name, value);
  response.keep_alive(keepsAlive);
  response.content_length(answer.body.size());
  if (!isHead) response.body() = answer.body;
  stream.expires_after(patience);
  http::response_serializer<http::string_body> serializer(response);
  if (isHead) {
    co_await http::async_write_header(stream, serializer, asio::use_awaitable);
  } else {
    co_await http::async_write(stream, serializer, asio::use_awaitable);
  }
}

/// Ends when the other side goes away; whatever it sends meanwhile is not read.
asio::awaitable<void> gone(beast::tcp_stream& stream) {
  char byte = 0;
  boost::system::error_code error;
  co_await stream.socket().async_read_some(asio::buffer(&byte, 1), asio::redirect_error(asio::use_awaitable, error));
}

asio::awaitable<void> writeEvents(beast::tcp_stream& stream, const HTTPResponse& answer) {
  http::response<http::empty_body> response;
  response.version(11);
  response.result(http::status::ok);
  addSafeHeaders(response);
  response.set(http::field::content_type, "text/event-stream");
  response.keep_alive(false);
  stream.expires_after(patience);
  http::response_serializer<http::empty_body> serializer(response);
  co_await http::async_write_header(stream, serializer, asio::use_awaitable);
  while (true) {
    stream.expires_never();
    auto next = co_await (answer.nextEvent() || gone(stream));
    if (next.index() == 1) co_return;
    stream.expires_after(patience);
    const std::string event = std::get<0>(std::move(next));
    co_await asio::async_write(stream, asio::buffer(event), asio::use_awaitable);
  }
}

HTTPResponse complaint(int status, const std::string& why) {
  return {.status = status, .contentType = "application/json", .body = R"({"error": ")" + why + "\"}\n"};
}

/// What to say of a request that could not be read; nothing where the connection simply ended.
std::optional<HTTPResponse> complaintAbout(const beast::error_code& error) {
  if (error == http::error::header_limit || error == http::error::buffer_overflow) {
    return complaint(431, "the request's headers are too long");
  }
  if (error == http::error::body_limit) return complaint(413, "the request is too large");
  if (error == beast::error::timeout || error == http::error::end_of_stream) return std::nullopt;
  if (error.category() == make_error_code(http::error::bad_method).category()) {
    return complaint(400, "the request cannot be read");
  }
  return std::nullopt;
}

/// Reads some of what is still being sent, for closing at once would take the answer away with it.
asio::awaitable<void> drain(beast::tcp_stream& stream) {
  constexpr std::chrono::seconds moment(1);
  constexpr int mostReads = 1000;
  std::array<char, 4096> bytes = {};
  stream.socket().shutdown(tcp::socket::shutdown_send);
  stream.expires_after(moment);
  beast::error_code error;
  for (int count = 0; count < mostReads; ++count) {
    co_await stream.async_read_some(asio::buffer(bytes), asio::redirect_error(asio::use_awaitable, error));
    if (error) co_return;
  }
}

asio::awaitable<void> serve(beast::tcp_stream& stream, const HTTPServer::Handler& handler, Load& load) {
  // What is read ahead never exceeds what a request may have.
  beast::flat_static_buffer<largestHeader + largestBody> buffer;
  bool isFirst = true;
  while (true) {
    http::request_parser<http::string_body> parser;
    parser.header_limit(largestHeader);
    parser.body_limit(largestBody);
    stream.expires_after(isFirst || buffer.size() > 0 ? patience : idlePatience);
    isFirst = false;
    beast::error_code error;
    co_await http::async_read(stream, buffer, parser, asio::redirect_error(asio::use_awaitable, error));
    if (error) {
      if (const auto why = complaintAbout(error)) {
        co_await write(stream, *why, false, false);
        co_await drain(stream);
      }
      co_return;
    }
    const bool keepsAlive = parser.get().keep_alive();
    const bool isHead = parser.get().method() == http::verb::head;
    stream.expires_never();
    HTTPRequest request = requestOf(parser.get());
    HTTPResponse answer = co_await handler(std::move(request));
    if (answer.nextEvent && load.listeners >= mostListeners) answer = complaint(429, "too many listeners");
    if (answer.nextEvent) {
      const Counted listener(load.listeners);
      co_await writeEvents(stream, answer);
      co_return;
    }
    co_await write(stream, answer, isHead, keepsAlive);
    if (!keepsAlive) co_return;
  }
}

asio::awaitable<void> session(tcp::socket socket, std::shared_ptr<const HTTPServer::Handler> handler,
                              std::shared_ptr<Load> load) {
  const Counted connection(load->connections);
  beast::tcp_stream stream(std::move(socket));
  try {
    co_await serve(stream, *handler, *load);
    stream.socket().shutdown(tcp::socket::shutdown_send);
  } catch (const boost::system::system_error&) {
    // The other side has gone, or was too slow.
  }
}

asio::awaitable<void> accept(tcp::acceptor& acceptor, std::shared_ptr<const HTTPServer::Handler> handler) {
  const auto load = std::make_shared<Load>();
  asio::steady_timer pause(acceptor.get_executor());
  while (true) {
    boost::system::error_code error;
    tcp::socket socket = co_await acceptor.async_accept(asio::redirect_error(asio::use_awaitable, error));
    if (error) {
      // Out of descriptors, most likely: connections that end give some back.
      pause.expires_after(std::chrono::milliseconds(100));
      co_await pause.async_wait(asio::use_awaitable);
      continue;
    }
    if (load->connections >= mostConnections) continue;
    asio::co_spawn(acceptor.get_executor(), session(std::move(socket), handler, load), asio::detached);
  }
}

}  // namespace

std::expected<HTTPServer, std::string> HTTPServer::listening(const asio::any_io_executor& executor, int port) {
  try {
    const tcp::endpoint endpoint(asio::ip::address_v4::loopback(), static_cast<asio::ip::port_type>(port));
    return HTTPServer(tcp::acceptor(executor, endpoint));
  } catch (const boost::system::system_error& error) {
    return std::unexpected("port " + std::to_string(port) + ": " + error.code().message());
  }
}

void HTTPServer::start(Handler handler) {
  asio::co_spawn(acceptor_.get_executor(), accept(acceptor_, std::make_shared<const Handler>(std::move(handler))),
                 asio::detached);
}

}  // namespace host
