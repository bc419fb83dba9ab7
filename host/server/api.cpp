#include "host/server/api.hpp"

#include <charconv>
#include <cmath>

#include "foundation/iso8601.hpp"

namespace host {

namespace asio = boost::asio;
using foundation::JSON;

namespace {

constexpr auto jsonType = "application/json";

HTTPResponse jsonResponse(const JSON& json, int status = 200) {
  return {.status = status,
          .contentType = jsonType,
          .body = json.dump(-1, ' ', false, JSON::error_handler_t::replace) + "\n"};
}

HTTPResponse problem(int status, const std::string& message) {
  return jsonResponse({{"error", message}}, status);
}

HTTPResponse responseOf(const Refusal& refusal) {
  switch (refusal.reason) {
    case Refusal::Reason::unknown:
      return problem(404, refusal.message);
    case Refusal::Reason::impossible:
      return problem(400, refusal.message);
    case Refusal::Reason::noRoom:
      return problem(409, refusal.message);
    case Refusal::Reason::failed:
      break;
  }
  return problem(502, refusal.message);
}

HTTPResponse pictureResponse(Result<std::string> picture) {
  if (!picture) return responseOf(picture.error());
  return {.contentType = "image/png", .body = std::move(*picture)};
}

HTTPResponse emptyResponse(const Result<void>& result) {
  return result ? HTTPResponse{.status = 204} : responseOf(result.error());
}

HTTPResponse addedResponse(const Result<std::int64_t>& id) {
  return id ? jsonResponse({{"id", *id}}, 201) : responseOf(id.error());
}

std::string parameter(const HTTPRequest& request, const std::string& name) {
  const auto found = request.query.find(name);
  return found == request.query.end() ? std::string() : found->second;
}

/// Pixels to the point, from 0.5 to 4, in hundredths.
std::optional<double> scaleOf(const HTTPRequest& request) {
  const std::string text = parameter(request, "scale");
  double scale = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), scale);
  if (error != std::errc() || end != text.data() + text.size() || !(scale >= 0.5 && scale <= 4)) return std::nullopt;
  return std::round(scale * 100) / 100;
}

template <class Value>
std::optional<Value> member(const JSON& json, const char* name) {
  if (!json.is_object() || !json.contains(name)) return std::nullopt;
  try {
    return json.at(name).get<Value>();
  } catch (const JSON::exception&) {
    return std::nullopt;
  }
}

/// "/api/widgets/7/move": the number and what follows it.
std::optional<std::pair<std::int64_t, std::string>> widgetPath(std::string_view path) {
  constexpr std::string_view start = "/api/widgets/";
  if (!path.starts_with(start)) return std::nullopt;
  path.remove_prefix(start.size());
  std::int64_t id = 0;
  const auto [end, error] = std::from_chars(path.data(), path.data() + path.size(), id);
  if (error != std::errc()) return std::nullopt;
  const std::string_view rest = path.substr(static_cast<std::size_t>(end - path.data()));
  if (!rest.empty() && rest.front() != '/') return std::nullopt;
  return std::pair(id, std::string(rest.empty() ? rest : rest.substr(1)));
}

constexpr const char* badScale = "scale: a number from 0.5 to 4 is wanted";

}  // namespace

asio::awaitable<HTTPResponse> API::answer(HTTPRequest request) {
  if (auto refused = access_.answer(request)) co_return std::move(*refused);
  if (request.method == "HEAD") request.method = "GET";
  if (request.path == "/api/widgets") {
    if (request.method != "POST") co_return problem(405, "POST is wanted here");
    const JSON body = JSON::parse(request.body, nullptr, false);
    const auto kind = member<std::string>(body, "kind");
    const auto family = member<std::string>(body, "family");
    if (!kind || !family) co_return problem(400, "kind and family are wanted");
    const auto id = homeScreen_.add(*kind, *family);
    co_return addedResponse(id);
  }
  if (const auto widget = widgetPath(request.path)) {
    co_return co_await answerWidget(request, widget->first, widget->second);
  }
  if (request.method != "GET") co_return problem(405, "GET is wanted here");
  co_return co_await answerReading(request);
}

asio::awaitable<HTTPResponse> API::answerReading(const HTTPRequest& request) {
  if (auto file = page_.find(request.path)) co_return std::move(*file);
  if (request.path == "/api/state") co_return jsonResponse(homeScreen_.state());
  if (request.path == "/api/events") co_return events();
  if (request.path == "/api/why") {
    const JSON why = co_await homeScreen_.why();
    co_return jsonResponse(why);
  }
  if (request.path == "/api/at") {
    const auto moment = foundation::parseMoment(parameter(request, "moment"));
    if (!moment) co_return problem(400, "moment: a moment such as 2026-11-21T08:00:00Z is wanted");
    const auto widgets = co_await homeScreen_.at(*moment);
    co_return widgets ? jsonResponse(*widgets) : responseOf(widgets.error());
  }
  if (request.path == "/api/preview") {
    const auto scale = scaleOf(request);
    if (!scale) co_return problem(400, badScale);
    std::string kind = parameter(request, "kind");
    std::string family = parameter(request, "family");
    auto picture = co_await homeScreen_.preview(std::move(kind), std::move(family), *scale);
    co_return pictureResponse(std::move(picture));
  }
  co_return problem(404, "there is nothing here");
}

asio::awaitable<HTTPResponse> API::answerWidget(const HTTPRequest& request, std::int64_t id,
                                                const std::string& action) {
  if (action == "picture" && request.method == "GET") {
    const auto scale = scaleOf(request);
    if (!scale) co_return problem(400, badScale);
    const std::string at = parameter(request, "at");
    const auto moment = foundation::parseMoment(at);
    if (!at.empty() && !moment) co_return problem(400, "at: a moment such as 2026-11-21T08:00:00Z is wanted");
    auto picture = co_await homeScreen_.picture(id, *scale, moment);
    co_return pictureResponse(std::move(picture));
  }
  if (action.empty() && request.method == "DELETE") co_return emptyResponse(homeScreen_.remove(id));
  if (request.method != "POST") co_return problem(405, "another method is wanted here");
  const JSON body = JSON::parse(request.body, nullptr, false);
  if (action == "move") {
    const auto position = member<int>(body, "position");
    if (!position) co_return problem(400, "position is wanted");
    co_return emptyResponse(homeScreen_.move(id, *position));
  }
  if (action == "tap") {
    const auto item = member<std::string>(body, "id");
    const auto date = member<std::optional<foundation::Date>>(body, "date");
    if (!item || item->empty() || !date) co_return problem(400, "id and date are wanted");
    const auto done = co_await homeScreen_.tap(id, *item, *date);
    co_return emptyResponse(done);
  }
  co_return problem(404, "there is nothing here");
}

HTTPResponse API::events() {
  // The first event comes at once: whoever connects anew may have missed some.
  auto known = std::make_shared<std::uint64_t>(0);
  return {.nextEvent = [this, known]() -> asio::awaitable<std::string> {
    *known = co_await homeScreen_.changes().after(*known);
    co_return "event: state\ndata: {\"version\": " + std::to_string(*known) + "}\n\n";
  }};
}

}  // namespace host
