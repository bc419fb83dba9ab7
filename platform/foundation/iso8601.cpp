#include "foundation/iso8601.hpp"

#include <cstdint>
#include <cstdio>

#include "foundation/gregorian_days.hpp"

namespace foundation {
namespace {

using std::chrono::days;
using std::chrono::hours;
using std::chrono::milliseconds;
using std::chrono::minutes;
using std::chrono::seconds;
using std::chrono::sys_days;

bool isDigit(char byte) {
  return byte >= '0' && byte <= '9';
}

char lowercase(char byte) {
  return byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte - 'A' + 'a') : byte;
}

/// Takes the parts of a text from its front; a part that is not there leaves the text as it is.
class Scanner {
 public:
  explicit Scanner(std::string_view text) : rest_(text) {}

  std::string_view rest() const { return rest_; }

  bool take(char byte) {
    if (!rest_.starts_with(byte)) return false;
    rest_.remove_prefix(1);
    return true;
  }

  /// In either case.
  bool takeWord(std::string_view word) {
    if (rest_.size() < word.size()) return false;
    for (std::size_t at = 0; at < word.size(); ++at) {
      if (lowercase(rest_[at]) != lowercase(word[at])) return false;
    }
    rest_.remove_prefix(word.size());
    return true;
  }

  /// Between one digit and so many.
  std::optional<std::int64_t> takeNumber(std::size_t maximalDigits) {
    std::int64_t number = 0;
    std::size_t count = 0;
    while (count < rest_.size() && isDigit(rest_[count])) {
      if (count == maximalDigits) return std::nullopt;
      number = number * 10 + (rest_[count] - '0');
      ++count;
    }
    if (count == 0) return std::nullopt;
    rest_.remove_prefix(count);
    return number;
  }

  std::optional<std::int64_t> takeTwoDigits() {
    if (rest_.size() < 2) return std::nullopt;
    Scanner pair(rest_.substr(0, 2));
    const auto number = pair.takeNumber(2);
    if (!number || !pair.rest().empty()) return std::nullopt;
    rest_.remove_prefix(2);
    return number;
  }

 private:
  std::string_view rest_;
};

constexpr std::size_t maximalDigits = 10;
constexpr std::int64_t maximalYear = 200'000'000;  // milliseconds in 64 bits reach further
constexpr seconds maximalOffset = hours(18);

/// "+01:00", "+0100", "+01:00:30".
std::optional<seconds> takeOffset(Scanner& text) {
  const bool isWest = text.take('-');
  if (!isWest && !text.take('+')) return std::nullopt;
  Scanner shortHour = text;
  auto hour = text.takeTwoDigits();
  if (!hour) {
    text = shortHour;
    hour = text.takeNumber(1);
  }
  if (!hour) return std::nullopt;
  text.take(':');
  const auto minute = text.takeTwoDigits();
  if (!minute) return std::nullopt;
  Scanner behind = text;
  behind.take(':');
  const auto second = behind.takeTwoDigits();
  if (second) text = behind;
  const seconds offset = hours(*hour) + minutes(*minute) + seconds(second.value_or(0));
  if (offset > maximalOffset) return std::nullopt;
  return isWest ? -offset : offset;
}

std::optional<seconds> takeZone(Scanner& text) {
  if (text.take('Z') || text.take('z')) return seconds(0);
  if (text.takeWord("GMT") || text.takeWord("UTC")) {
    if (!text.rest().starts_with('+') && !text.rest().starts_with('-')) return seconds(0);
  }
  return takeOffset(text);
}

bool isDayOfAnyMonth(std::int64_t month, std::int64_t day) {
  return month >= 1 && month <= 12 && day >= 1 && day <= 31;
}

std::chrono::sys_seconds secondAt(const CivilDay& civil, seconds time) {
  return sys_days(days(daysSince1970(civil))) + time;
}

/// "2024-03-07T10:00:00Z" and nothing else: how nearly all dates are written.
std::optional<std::chrono::sys_seconds> usualDateTime(std::string_view text) {
  constexpr std::size_t size = 20;
  if (text.size() != size) return std::nullopt;
  bool fits =
      text[4] == '-' && text[7] == '-' && text[10] == 'T' && text[13] == ':' && text[16] == ':' && text[19] == 'Z';
  const auto pairAt = [&](std::size_t at) {
    fits &= isDigit(text[at]) && isDigit(text[at + 1]);
    return (text[at] - '0') * 10 + (text[at + 1] - '0');
  };
  const CivilDay civil = {.year = pairAt(0) * 100 + pairAt(2), .month = pairAt(5), .day = pairAt(8)};
  const auto time = hours(pairAt(11)) + minutes(pairAt(14)) + seconds(pairAt(17));
  if (!fits || !isDayOfAnyMonth(civil.month, civil.day)) return std::nullopt;
  return secondAt(civil, time);
}

/// "2024-03-07T10:00:00": UTC, as if the zone were it.
std::optional<std::chrono::sys_seconds> takeDateTime(Scanner& text) {
  const auto year = text.takeNumber(maximalDigits);
  if (!year || *year > maximalYear || !text.take('-')) return std::nullopt;
  const auto month = text.takeNumber(maximalDigits);
  if (!month || !text.take('-')) return std::nullopt;
  const auto day = text.takeNumber(maximalDigits);
  if (!day || !isDayOfAnyMonth(*month, *day) || !text.take('T')) return std::nullopt;
  const auto hour = text.takeNumber(2);
  if (!hour || !text.take(':')) return std::nullopt;
  const auto minute = text.takeNumber(2);
  if (!minute || !text.take(':')) return std::nullopt;
  const auto second = text.takeNumber(2);
  if (!second) return std::nullopt;
  const CivilDay civil = {.year = *year, .month = static_cast<int>(*month), .day = static_cast<int>(*day)};
  return secondAt(civil, hours(*hour) + minutes(*minute) + seconds(*second));
}

std::string dateTimeText(Date date) {
  const std::chrono::sys_seconds second = secondOf(date);
  const sys_days midnight = std::chrono::floor<days>(second);
  const CivilDay civil = civilDay(midnight.time_since_epoch().count());
  const std::chrono::hh_mm_ss time(second - midnight);
  char text[64] = {};
  std::snprintf(text, sizeof text, "%04lld-%02d-%02dT%02d:%02d:%02d", static_cast<long long>(civil.year), civil.month,
                civil.day, static_cast<int>(time.hours().count()), static_cast<int>(time.minutes().count()),
                static_cast<int>(time.seconds().count()));
  return text;
}

}  // namespace

std::optional<Date> parseISO8601(std::string_view text) {
  if (const auto usual = usualDateTime(text)) return *usual;
  Scanner scanner(text);
  const auto wallClock = takeDateTime(scanner);
  if (!wallClock) return std::nullopt;
  const auto offset = takeZone(scanner);
  if (!offset) return std::nullopt;
  return *wallClock - *offset;
}

std::string formatISO8601(Date date) {
  return dateTimeText(date) + "Z";
}

std::string formatMoment(Date date) {
  const auto fraction = static_cast<int>((date - secondOf(date)).count());
  if (fraction == 0) return formatISO8601(date);
  char text[8] = {};
  std::snprintf(text, sizeof text, ".%03dZ", fraction);
  return dateTimeText(date) + text;
}

std::optional<Date> parseMoment(std::string_view text) {
  Scanner scanner(text);
  const auto wallClock = takeDateTime(scanner);
  if (!wallClock) return std::nullopt;
  milliseconds fraction = {};
  const bool hasFraction = scanner.take('.');
  if (hasFraction) {
    const std::size_t before = scanner.rest().size();
    const auto number = scanner.takeNumber(3);
    if (!number || before - scanner.rest().size() != 3) return std::nullopt;
    fraction = milliseconds(*number);
  }
  const auto offset = takeZone(scanner);
  if (!offset || !scanner.rest().empty()) return std::nullopt;
  return *wallClock - *offset + fraction;
}

}  // namespace foundation
