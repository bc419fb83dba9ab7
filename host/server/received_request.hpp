#pragma once

#include <boost/beast/http/message.hpp>
#include <boost/beast/http/string_body.hpp>

#include "host/server/http_message.hpp"

namespace host {

/// What the server looks at of a request. A header that must not be there twice counts as absent where it is.
HTTPRequest requestOf(const boost::beast::http::request<boost::beast::http::string_body>& received);

}  // namespace host
