#pragma once

#include "host/live/home_screen.hpp"
#include "host/server/access.hpp"
#include "host/server/http_message.hpp"
#include "host/server/page_files.hpp"

namespace host {

/// Answers what the page asks, and hands out the page itself.
class API {
 public:
  API(HomeScreen& homeScreen, Access& access, PageFiles page)
      : homeScreen_(homeScreen), access_(access), page_(std::move(page)) {}

  boost::asio::awaitable<HTTPResponse> answer(HTTPRequest request);

 private:
  boost::asio::awaitable<HTTPResponse> answerReading(const HTTPRequest& request);
  boost::asio::awaitable<HTTPResponse> answerWidget(const HTTPRequest& request, std::int64_t id,
                                                    const std::string& action);
  HTTPResponse events();

  HomeScreen& homeScreen_;
  Access& access_;
  PageFiles page_;
};

}  // namespace host
