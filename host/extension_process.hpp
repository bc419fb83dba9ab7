#pragma once

#include <chrono>
#include <expected>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>

#include "messages/replies.hpp"
#include "messages/requests.hpp"

namespace host {

/// The widget extension as the host sees it: a process that answers one request at a time.
///
/// It is started by the first request, and by the next one after it has failed or was let go. It talks over its
/// descriptor 3; what it prints on standard output goes to our standard error (debug lines), what it prints on its own
/// standard error is read away, and its last line explains why it stopped.
class ExtensionProcess {
 public:
  struct Options {
    std::filesystem::path program = {};
    std::chrono::milliseconds timeLimit = std::chrono::seconds(30);  ///< for one request, start included
  };

  using ReportProgress = std::function<void(const messages::Progress&)>;

  explicit ExtensionProcess(Options options);
  ~ExtensionProcess();
  ExtensionProcess(const ExtensionProcess&) = delete;
  ExtensionProcess& operator=(const ExtensionProcess&) = delete;

  /// The answer (a messages::Failure is one too), or one line that says why there is none:
  ///
  ///   the widget extension stopped: its last line on standard error
  ///   the widget extension did not answer within 30 s
  ///
  /// In that case the process is gone when this returns.
  /// `report` is told how far a long answer is; the time limit begins anew each time.
  std::expected<messages::Reply, std::string> ask(const messages::Envelope& envelope,
                                                  const ReportProgress& report = {});

  /// Lets the process go: closes the connection, and kills it where it does not end within a second.
  void stop();

 private:
  struct Running;

  std::expected<void, std::string> start();
  std::expected<messages::Reply, std::string> exchange(const messages::Envelope& envelope,
                                                       const ReportProgress& report);
  std::string whyStopped();

  Options options_;
  std::unique_ptr<Running> running_;
};

}  // namespace host
