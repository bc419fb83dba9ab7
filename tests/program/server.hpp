#pragma once

#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>

#include <array>
#include <functional>
#include <optional>
#include <thread>

#include "program.hpp"
#include "support/child_processes.hpp"
#include "support/http_client.hpp"
#include "support/ordinary_rights.hpp"

namespace program {

/// Looks again and again until the condition holds; false where it does not in time.
inline bool comesTrue(const std::function<bool()>& condition,
                      std::chrono::milliseconds limit = std::chrono::seconds(60)) {
  const auto deadline = std::chrono::steady_clock::now() + limit;
  while (!condition()) {
    if (std::chrono::steady_clock::now() >= deadline) return false;
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
  }
  return true;
}

/// The running `mirune serve` of a test, with all that it keeps in a folder of its own.
class Server {
 public:
  explicit Server(const support::TemporaryFolder& folder, const std::vector<std::string>& options = {})
      : errorFile_(folder / "error") {
    std::vector<std::string> arguments = {
        MIRUNE_PROGRAM,       "serve",      "--port",        "0",        "--container",
        folder / "container", "--timezone", "Europe/Berlin", "--locale", "en_US"};
    arguments.insert(arguments.end(), options.begin(), options.end());
    std::vector<std::string> variables = {"HOME=" + folder.path().string(),
                                          "XDG_DATA_HOME=" + (folder / "data").string(),
                                          "XDG_RUNTIME_DIR=" + (folder / "runtime").string()};
    for (char** each = environ; *each != nullptr; ++each) {
      const std::string variable = *each;
      const bool isOurs = variable.starts_with("MIRUNE_") || variable.starts_with("XDG_") ||
                          variable.starts_with("HOME=") || variable.starts_with("TZ=");
      if (!isOurs) variables.push_back(variable);
    }
    std::array<int, 2> pipe = {};
    if (::pipe2(pipe.data(), O_CLOEXEC) != 0) throw std::runtime_error("no pipe");
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, pipe[1], STDOUT_FILENO);
    posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, errorFile_.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
    support::startWithOrdinaryRights();
    posix_spawn(&id_, MIRUNE_PROGRAM, &actions, nullptr, pointers(arguments).data(), pointers(variables).data());
    posix_spawn_file_actions_destroy(&actions);
    ::close(pipe[1]);
    readAddress(pipe[0]);
    ::close(pipe[0]);
  }
  Server(const Server&) = delete;
  Server& operator=(const Server&) = delete;
  ~Server() {
    if (!stop(SIGTERM)) stop(SIGKILL);
  }

  bool isRunning() const { return ::kill(id_, 0) == 0 && !hasEnded_; }
  pid_t id() const { return id_; }
  /// What it printed on standard error.
  std::string errors() const { return support::readBytes(errorFile_); }
  /// "http://127.0.0.1:4127/open/…", empty where it did not start.
  const std::string& address() const { return address_; }
  std::string openPath() const { return address_.substr(std::min(address_.size(), address_.find("/open/"))); }
  int port() const {
    const std::size_t colon = address_.rfind(':');
    return colon == std::string::npos ? 0 : std::atoi(address_.c_str() + colon + 1);
  }

  /// A client that was let in.
  support::HTTPClient letIn() const {
    support::HTTPClient client{.port = port()};
    const auto reply = client.get(openPath());
    EXPECT_EQ(reply.status, 303);
    const auto cookie = reply.headers.find("set-cookie");
    if (cookie != reply.headers.end()) client.cookie = cookie->second.substr(0, cookie->second.find(';'));
    return client;
  }

  /// Sends the signal and waits for the end; what the process ended with.
  std::optional<int> stop(int signal = SIGTERM) {
    if (hasEnded_) return status_;
    ::kill(id_, signal);
    return ending();
  }
  std::optional<int> ending() {
    const bool ended =
        hasEnded_ || comesTrue([&] { return ::waitpid(id_, &status_, WNOHANG) == id_; }, std::chrono::seconds(30));
    hasEnded_ = ended;
    return ended ? std::optional(status_) : std::nullopt;
  }

  /// The processes of the extension; there is one, or none.
  std::vector<pid_t> extensions() const { return support::childrenOf(id_); }

 private:
  static std::vector<char*> pointers(std::vector<std::string>& texts) {
    std::vector<char*> result;
    for (std::string& each : texts) result.push_back(each.data());
    result.push_back(nullptr);
    return result;
  }

  void readAddress(int output) {
    std::string line;
    pollfd waited = {.fd = output, .events = POLLIN, .revents = 0};
    char byte = 0;
    while (::poll(&waited, 1, 60000) > 0 && ::read(output, &byte, 1) == 1 && byte != '\n') line += byte;
    const std::size_t begin = line.find("http://");
    if (begin != std::string::npos) address_ = line.substr(begin);
  }

  std::filesystem::path errorFile_;
  pid_t id_ = 0;
  std::string address_ = {};
  bool hasEnded_ = false;
  int status_ = 0;
};

}  // namespace program
