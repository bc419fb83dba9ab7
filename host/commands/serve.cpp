#include <boost/asio/co_spawn.hpp>
#include <boost/asio/detached.hpp>
#include <boost/asio/io_context.hpp>
#include <boost/asio/signal_set.hpp>
#include <cstdlib>
#include <thread>

#include "foundation/user_defaults.hpp"
#include "host/browser.hpp"
#include "host/commands/command.hpp"
#include "host/commands/world_options.hpp"
#include "host/live/page_words.hpp"
#include "host/server/api.hpp"
#include "host/server/http_server.hpp"
#include "host/server/running_server.hpp"
#include "host/server/token_file.hpp"
#include "host/standard_streams.hpp"

namespace host {

namespace asio = boost::asio;

namespace {

constexpr int usualPort = 4127;

std::string_view variable(const char* name) {
  const char* value = std::getenv(name);
  return value != nullptr ? value : std::string_view();
}

/// home.db in XDG_DATA_HOME/mirune, else in HOME/.local/share/mirune.
std::filesystem::path storeFile() {
  const std::filesystem::path dataHome = variable("XDG_DATA_HOME");
  const std::filesystem::path home = variable("HOME");
  const std::filesystem::path data = dataHome.is_absolute() ? dataHome : home / ".local" / "share";
  return data / "mirune" / "home.db";
}

void say(const std::string& line) {
  writeAll(STDERR_FILENO, "mirune: " + line + "\n");
}

void sayAddress(const std::string& address) {
  writeAll(STDOUT_FILENO, "The home screen is at " + address + "\n");
}

struct Serve {
  explicit Serve(const Surroundings& where) : surroundings(where), device(where) {}

  Outcome run() const {
    const auto world = device.world();
    if (!world) return std::unexpected(world.error());
    const auto folder = tokenFolder(
        {.runtimeDir = variable("XDG_RUNTIME_DIR"), .stateHome = variable("XDG_STATE_HOME"), .home = variable("HOME")});
    if (folder.empty())
      return failed("none of XDG_RUNTIME_DIR, XDG_STATE_HOME and HOME is set: no place for the token");

    asio::io_context context(1);
    auto server = HTTPServer::listening(context.get_executor(), port);
    if (!server) {
      if (const auto address = opens ? addressOfRunningServer(folder, port) : std::nullopt)
        return openRunning(*address);
      return failed(server.error() + " (--port 0 takes any that is free)");
    }
    const auto random = foundation::systemRandomSource();
    const auto token = tokenIn(folder, server->port(), random);
    if (!token) return failed(token.error());
    PageFiles page(surroundings.resources / "page");
    if (page.empty()) return failed("the page is missing: " + (surroundings.resources / "page").string());

    const auto locale = foundation::Locale::named(world->locale).value_or(foundation::Locale());
    home::HomeStore store(storeFile());
    if (const auto& notice = store.notice()) say(*notice);
    const bool hasOwnTime = device.hasMoment() || speed != 1;
    HomeScreen homeScreen(context.get_executor(),
                          {.world = *world,
                           .clock = hasOwnTime ? LiveClock(world->now, speed) : LiveClock(),
                           .followsSystemZone = !device.hasTimeZone() && variable("TZ").empty(),
                           .extension = {.program = surroundings.extension, .timeLimit = std::chrono::seconds(10)},
                           .words = pageWords(surroundings.resources, locale)},
                          store);
    Access access(server->port(), *token, random);
    API api(homeScreen, access, std::move(page));

    std::optional<messages::Failure> problem;
    asio::signal_set stop(context, SIGTERM, SIGINT);
    stop.async_wait([&](const boost::system::error_code&, int) { context.stop(); });
    asio::signal_set hangup(context, SIGHUP);
    const std::function<void()> awaitReload = [&] {
      hangup.async_wait([&](const boost::system::error_code& error, int) {
        if (error) return;
        homeScreen.reload();
        awaitReload();
      });
    };
    awaitReload();
    asio::co_spawn(
        context,
        [&]() -> asio::awaitable<void> {
          if (auto prepared = co_await homeScreen.prepare(); !prepared) {
            problem = prepared.error();
            context.stop();
            co_return;
          }
          homeScreen.start();
          server->start([&](HTTPRequest request) { return api.answer(std::move(request)); });
          // Whoever waits for the address reads it now, not when this ends.
          sayAddress(access.newAddress());
          if (opens) openBeside(access.newAddress());
        },
        asio::detached);
    context.run();
    if (problem) return std::unexpected(*problem);
    return "";
  }

  /// For a home screen that is served already, as by a systemd unit.
  static Outcome openRunning(const std::string& address) {
    sayAddress(address);
    if (const auto problem = openInBrowser(address)) return failed(*problem);
    return "";
  }

  /// The server does not wait for the browser, nor end with it.
  static void openBeside(const std::string& address) {
    std::thread([address] {
      if (const auto problem = openInBrowser(address)) say(*problem);
    }).detach();
  }

  Surroundings surroundings;
  WorldOptions device;
  bool opens = false;
  int port = usualPort;
  double speed = 1;
};

}  // namespace

Command serveCommand() {
  return {.name = "serve",
          .summary = "Show the live home screen in a browser",
          .declare = [](CLI::App& app, const Surroundings& surroundings) -> std::function<Outcome()> {
            auto serve = std::make_shared<Serve>(surroundings);
            app.add_option("--port", serve->port, "Port on this machine's own address; 0 takes any that is free")
                ->capture_default_str()
                ->check(CLI::Range(0, 65535));
            app.add_option("--speed", serve->speed, "Seconds that pass in each, for trying out a day in a minute")
                ->check(CLI::Range(0.001, 1e6));
            app.add_flag("--open", serve->opens,
                         "Open the address in the browser; where the port is served already, one of that server");
            app.footer(
                "Prints an address that lets in one browser; that browser stays let in. Only this machine and "
                "this user can reach it. Ends with Ctrl+C; reads everything again on SIGHUP.");
            serve->device.addTo(app);
            return [serve] { return serve->run(); };
          }};
}

}  // namespace host
