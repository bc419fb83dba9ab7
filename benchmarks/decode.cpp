// Decoding the planner's items, and beside it the least that a program does with the same library for the same records:
// a loop that takes each member by name, trusts the text, and knows one way to write a date.

#include <benchmark/benchmark.h>
#include <simdjson.h>

#include <stdexcept>

#include "foundation/file_manager.hpp"
#include "planner_files.hpp"
#include "shared/item_files.hpp"

namespace {

using mirune::ItemFile;
using mirune::WidgetData;

int digitsAt(std::string_view text, std::size_t place, std::size_t count) {
  int number = 0;
  for (const char digit : text.substr(place, count)) number = number * 10 + (digit - '0');
  return number;
}

/// "2026-11-21T08:00:00Z".
foundation::Date dateOf(std::string_view text) {
  using namespace std::chrono;
  const sys_days day = year(digitsAt(text, 0, 4)) / digitsAt(text, 5, 2) / digitsAt(text, 8, 2);
  return day + hours(digitsAt(text, 11, 2)) + minutes(digitsAt(text, 14, 2)) + seconds(digitsAt(text, 17, 2));
}

std::string_view textOf(simdjson::ondemand::object& object, const char* key) {
  return object.find_field(key).get_string().value();
}

WidgetData itemOf(simdjson::ondemand::object object) {
  WidgetData item{.type = static_cast<mirune::WidgetDataType>(object.find_field("type").get_int64().value()),
                  .id = std::string(textOf(object, "id")),
                  .title = std::string(textOf(object, "title")),
                  .isOn = object.find_field("isOn").get_bool().value(),
                  .calid = std::string(textOf(object, "calid")),
                  .starttime = dateOf(textOf(object, "starttime")),
                  .endtime = dateOf(textOf(object, "endtime")),
                  .allday = object.find_field("allday").get_bool().value()};
  std::string_view color;
  if (object.find_field("colorHex").get_string().get(color) == simdjson::SUCCESS) item.colorHex = color;
  return item;
}

ItemFile bareDecode(simdjson::ondemand::parser& parser, const simdjson::padded_string& text) {
  ItemFile file;
  auto document = parser.iterate(text);
  for (auto member : document.get_object()) {
    auto& items = file[std::string(member.unescaped_key().value())];
    for (auto item : member.value().get_array()) items.push_back(itemOf(item.get_object()));
  }
  return file;
}

constexpr std::size_t fileSize = 200'000;

std::size_t itemCount(const ItemFile& file) {
  std::size_t count = 0;
  for (const auto& [key, items] : file) count += items.size();
  return count;
}

void countItems(benchmark::State& state, const ItemFile& file) {
  const auto count = static_cast<double>(itemCount(file));
  state.counters["items"] = count;
  state.counters["per item"] =
      benchmark::Counter(count, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

void bareLoop(benchmark::State& state) {
  const simdjson::padded_string text(benchmarks::eventsOfSize(fileSize));
  simdjson::ondemand::parser parser;
  ItemFile file;
  for (auto _ : state) benchmark::DoNotOptimize(file = bareDecode(parser, text));
  countItems(state, file);
}

void decoder(benchmark::State& state) {
  const std::string text = benchmarks::eventsOfSize(fileSize);
  simdjson::ondemand::parser parser;
  if (foundation::decodeJSON<ItemFile>(text) != bareDecode(parser, text)) throw std::logic_error("they differ");
  ItemFile file;
  for (auto _ : state) {
    // Decoding uses a text up. As from a file it has room behind it.
    state.PauseTiming();
    std::string spent;
    spent.reserve(text.size() + foundation::roomBehindFile);
    spent = text;
    state.ResumeTiming();
    benchmark::DoNotOptimize(file = foundation::decodeJSON<ItemFile>(std::move(spent)).value());
  }
  countItems(state, file);
}

BENCHMARK(bareLoop)->Unit(benchmark::kMicrosecond);
BENCHMARK(decoder)->Unit(benchmark::kMicrosecond);

}  // namespace
