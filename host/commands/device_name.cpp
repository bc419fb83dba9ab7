#include "host/commands/command.hpp"
#include "host/commands/question.hpp"
#include "host/commands/text.hpp"

namespace host {

namespace {

Outcome nameDevice(const std::filesystem::path& extension, const std::optional<std::string>& identifier) {
  if (identifier && identifier->empty()) return usage("IDENTIFIER: is empty");
  if (identifier && !isUTF8(*identifier)) return usage("IDENTIFIER: is not UTF-8 text");
  ExtensionProcess process({.program = extension});
  const auto answer =
      question<messages::DeviceName>(process, {.request = messages::NameDevice{.identifier = identifier}});
  if (!answer) return std::unexpected(answer.error());
  return printable(answer->name) + "\n";
}

}  // namespace

Command deviceNameCommand() {
  return {.name = "device-name",
          .summary = "Print the marketing name of a device",
          .declare = [](CLI::App& app, const Surroundings& surroundings) -> std::function<Outcome()> {
            auto identifier = std::make_shared<std::string>();
            const auto* given = app.add_option("IDENTIFIER", *identifier,
                                               "Model as its kernel reports it, such as iPhone9,4 (else this machine)")
                                    ->option_text(" ");
            app.footer("A model without a name of its own is printed as it is.");
            return [identifier, given, extension = surroundings.extension] {
              return nameDevice(extension, given->count() > 0 ? std::optional(*identifier) : std::nullopt);
            };
          }};
}

}  // namespace host
