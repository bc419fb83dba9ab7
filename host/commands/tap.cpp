#include "foundation/calendar.hpp"
#include "host/commands/command.hpp"
#include "host/commands/container_fault.hpp"
#include "host/commands/moment.hpp"
#include "host/commands/question.hpp"
#include "host/commands/text.hpp"
#include "host/commands/world_options.hpp"
#include "host/mark_task_complete.hpp"

namespace host {

namespace {

struct Tap {
  explicit Tap(const Surroundings& surroundings) : extension(surroundings.extension), device(surroundings) {}

  Outcome run() const {
    if (id.empty()) return usage("ID: is empty");
    if (!isUTF8(id)) return usage("ID: is not UTF-8 text");
    const auto world = device.world();
    if (!world) return std::unexpected(world.error());
    const auto marked = markedDate(*world);
    if (!marked) return std::unexpected(marked.error());
    if (const auto fault = containerFault(world->container)) return failed(*fault);

    ExtensionProcess process({.program = extension});
    const messages::PerformIntent request = {.intent = markTaskComplete,
                                             .parameters = {{"id", id}, {"date", foundation::JSON(*marked)}}};
    const auto done = question<messages::Done>(process, {.world = *world, .request = request});
    if (!done) return std::unexpected(done.error());
    return "";
  }

  /// The date that a widget's own row would carry, unless another one is asked for; none takes the mark back.
  std::expected<std::optional<foundation::Date>, messages::Failure> markedDate(const messages::World& world) const {
    if (clear) return std::nullopt;
    if (date) return moment("--date", date, world.now);
    const auto zone = foundation::TimeZone::named(world.timeZone);
    if (!zone) return usage("--timezone: '" + world.timeZone + "' is not a time zone such as Europe/Berlin");
    return foundation::Calendar::iso8601(*zone).startOfDay(world.now);
  }

  std::filesystem::path extension;
  WorldOptions device;
  std::string id;
  std::optional<std::string> date;
  bool clear = false;
};

}  // namespace

Command tapCommand() {
  return {.name = "tap",
          .summary = "Mark a task or habit complete, as a tap on its check box does",
          .declare = [](CLI::App& app, const Surroundings& surroundings) -> std::function<Outcome()> {
            auto tap = std::make_shared<Tap>(surroundings);
            app.add_option("ID", tap->id, "Identifier of the item (see mirune timeline tasks --json)")
                ->required()
                ->option_text(" ");
            auto* date = app.add_option("--date", tap->date, "Date that the mark carries (else the start of today)");
            date->type_name("MOMENT");
            app.add_flag("--clear", tap->clear, "Take the mark back")->excludes(date);
            tap->device.addTo(app);
            return [tap] { return tap->run(); };
          }};
}

}  // namespace host
