#include "host/server/running_server.hpp"

#include <unistd.h>

#include <boost/asio/co_spawn.hpp>
#include <boost/asio/io_context.hpp>
#include <boost/asio/ip/tcp.hpp>
#include <boost/asio/use_awaitable.hpp>
#include <boost/beast/core.hpp>
#include <boost/beast/http.hpp>
#include <fstream>
#include <sstream>

#include "host/server/token_file.hpp"

namespace host {

namespace asio = boost::asio;
namespace beast = boost::beast;
namespace http = beast::http;

namespace {

asio::awaitable<std::string> askForAddress(int port, std::string token) {
  beast::tcp_stream stream(co_await asio::this_coro::executor);
  stream.expires_after(std::chrono::seconds(5));
  co_await stream.async_connect({asio::ip::address_v4::loopback(), static_cast<asio::ip::port_type>(port)},
                                asio::use_awaitable);
  http::request<http::empty_body> request(http::verb::post, "/api/address", 11);
  request.set(http::field::host, "127.0.0.1:" + std::to_string(port));
  request.set(http::field::authorization, "Bearer " + token);
  request.prepare_payload();
  co_await http::async_write(stream, request, asio::use_awaitable);
  beast::flat_buffer buffer;
  http::response<http::string_body> response;
  co_await http::async_read(stream, buffer, response, asio::use_awaitable);
  co_return response.body();
}

}  // namespace

bool isListening(std::istream& table, int port, uid_t user) {
  // sl local_address rem_address st tx_queue:rx_queue tr:tm->when retrnsmt uid …, numbers but the last hexadecimal
  char local[16] = {};
  std::snprintf(local, sizeof local, "0100007F:%04X", static_cast<unsigned>(port));
  for (std::string line; std::getline(table, line);) {
    std::istringstream fields(line);
    std::string slot, from, to, state, queues, timer, retries;
    uid_t owner = 0;
    if (!(fields >> slot >> from >> to >> state >> queues >> timer >> retries >> owner)) continue;
    if (from == local && state == "0A") return owner == user;
  }
  return false;
}

std::optional<std::string> addressOfRunningServer(const std::filesystem::path& tokens, int port) {
  const std::string token = knownToken(tokens, port);
  std::ifstream table("/proc/net/tcp");
  if (token.empty() || !isListening(table, port, ::geteuid())) return std::nullopt;
  std::string answer;
  asio::io_context context(1);
  asio::co_spawn(context, askForAddress(port, token), [&](const std::exception_ptr& error, std::string body) {
    if (!error) answer = std::move(body);
  });
  context.run();
  std::string address = answer.substr(0, answer.find('\n'));
  if (!address.starts_with("http://127.0.0.1:" + std::to_string(port) + "/open/")) return std::nullopt;
  return address;
}

}  // namespace host
