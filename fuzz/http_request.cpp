#include <boost/beast/core.hpp>
#include <boost/beast/http.hpp>

#include "fuzz/fuzzing.hpp"
#include "host/server/received_request.hpp"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  namespace http = boost::beast::http;
  http::request_parser<http::string_body> parser;
  parser.header_limit(8 * 1024);
  parser.body_limit(16 * 1024);
  parser.eager(true);
  boost::system::error_code error;
  parser.put(boost::asio::buffer(data, size), error);
  if (error || !parser.is_done()) return 0;
  const auto request = host::requestOf(parser.get());
  fuzzing::require(request.path.find('?') == std::string::npos, "a path ends where the query begins");
  return 0;
}
