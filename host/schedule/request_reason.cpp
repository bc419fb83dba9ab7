#include "schedule/request_reason.hpp"

namespace host {

std::string_view textOf(RequestReason reason) {
  switch (reason) {
    case RequestReason::first:
      return "first request";
    case RequestReason::endReached:
      return "end of the timeline";
    case RequestReason::dateNamed:
      return "date named by the widget";
    case RequestReason::nextMidnight:
      return "next midnight";
    case RequestReason::retry:
      return "retry after a failure";
    case RequestReason::tap:
      return "tap";
    case RequestReason::files:
      return "changed files";
    case RequestReason::timeZone:
      return "changed time zone";
  }
  __builtin_unreachable();
}

}  // namespace host
