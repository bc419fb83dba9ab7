#include "host/commands/command_line.hpp"

#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>
#include <algorithm>
#include <map>

#include "host/commands/command.hpp"
#include "host/commands/text.hpp"

namespace host {

namespace {

enum ExitCode { done = 0, commandFailed = 1, wrongUsage = 2 };

using Run = std::function<Outcome()>;

CommandLineResult failure(ExitCode exitCode, const std::string& message) {
  return {.exitCode = exitCode, .error = "mirune: " + printable(message) + "\n"};
}

CommandLineResult result(const Outcome& outcome) {
  if (outcome) return {.exitCode = outcome->foundFaults ? commandFailed : done, .output = outcome->text};
  const auto& [reason, message] = outcome.error();
  return failure(reason == messages::Failure::Reason::usage ? wrongUsage : commandFailed, message);
}

std::map<const CLI::App*, Run> declareCommands(CLI::App& app, const Surroundings& surroundings) {
  app.name("mirune");
  app.set_version_flag("--version", "mirune " MIRUNE_VERSION);
  app.require_subcommand(0, 1);
  // Of an option that is given twice the last one counts, so that scripts can add to what they were given.
  app.option_defaults()->multi_option_policy(CLI::MultiOptionPolicy::TakeLast);
  app.footer("Exit codes: 0 done, 1 failed, 2 usage. mirune COMMAND --help explains a command.");
  std::map<const CLI::App*, Run> runs;
  for (const auto& command :
       {galleryCommand(), timelineCommand(), placeholderCommand(), snapshotCommand(), renderCommand(), sheetCommand(),
        tapCommand(), demoCommand(), doctorCommand(), deviceNameCommand(), serveCommand()}) {
    auto* subcommand = app.add_subcommand(command.name, command.summary);
    runs[subcommand] = command.declare(*subcommand, surroundings);
  }
  return runs;
}

}  // namespace

CommandLineResult runCommandLine(std::vector<std::string> arguments, const Surroundings& surroundings) {
  CLI::App app("Home-screen and lock-screen widgets of a personal planner");
  try {
    const auto runs = declareCommands(app, surroundings);
    std::ranges::reverse(arguments);  // as this overload of parse() wants them
    app.parse(std::move(arguments));
    const auto chosen = app.get_subcommands();
    return chosen.empty() ? CommandLineResult{.output = app.help()} : result(runs.at(chosen.front())());
  } catch (const CLI::CallForHelp&) {
    return {.output = app.help()};
  } catch (const CLI::CallForVersion& version) {
    return {.output = std::string(version.what()) + "\n"};
  } catch (const CLI::ParseError& error) {
    return failure(wrongUsage, error.what());
  } catch (const std::exception& error) {
    return failure(commandFailed, error.what());
  }
}

}  // namespace host
