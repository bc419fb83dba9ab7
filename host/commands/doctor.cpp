#include "host/commands/command.hpp"
#include "host/commands/diagnosis_listing.hpp"
#include "host/commands/question.hpp"
#include "host/commands/world_options.hpp"

namespace host {

namespace {

struct Doctor {
  explicit Doctor(const Surroundings& surroundings) : extension(surroundings.extension), device(surroundings) {}

  Outcome run() const {
    const auto world = device.world();
    if (!world) return std::unexpected(world.error());
    ExtensionProcess process({.program = extension});
    const auto diagnosis =
        question<messages::Diagnosis>(process, {.world = *world, .request = messages::DiagnoseContainer{}});
    if (!diagnosis) return std::unexpected(diagnosis.error());
    Printed report(asJSON ? diagnosisJSON(*diagnosis, *world) : diagnosisListing(*diagnosis, *world));
    report.foundFaults = faultCount(*diagnosis) > 0;
    return report;
  }

  std::filesystem::path extension;
  WorldOptions device;
  bool asJSON = false;
};

}  // namespace

Command doctorCommand() {
  return {.name = "doctor",
          .summary = "Examine the planner's files: what is wrong, and what widgets show instead",
          .declare = [](CLI::App& app, const Surroundings& surroundings) -> std::function<Outcome()> {
            auto doctor = std::make_shared<Doctor>(surroundings);
            app.add_flag("--json", doctor->asJSON, "Print JSON instead of a report");
            app.footer("Changes nothing. Exit code 1 where anything is wrong.");
            doctor->device.addTo(app);
            return [doctor] { return doctor->run(); };
          }};
}

}  // namespace host
