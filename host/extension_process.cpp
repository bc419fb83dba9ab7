#include "host/extension_process.hpp"

#include <fcntl.h>
#include <spawn.h>
#include <sys/socket.h>

#include <array>
#include <cstring>
#include <optional>
#include <sstream>

#include "foundation/file_descriptor.hpp"
#include "host/child_process.hpp"
#include "host/last_line_reader.hpp"
#include "messages/channel.hpp"

namespace host {

namespace {

constexpr int extensionDescriptor = 3;
constexpr auto timeToEnd = std::chrono::seconds(1);

/// The redirections of a process to be started, in the order in which they are made.
class FileActions {
 public:
  FileActions() { posix_spawn_file_actions_init(&actions_); }
  FileActions(const FileActions&) = delete;
  FileActions& operator=(const FileActions&) = delete;
  ~FileActions() { posix_spawn_file_actions_destroy(&actions_); }

  void openForReading(int descriptor, const char* path) {
    posix_spawn_file_actions_addopen(&actions_, descriptor, path, O_RDONLY, 0);
  }
  void duplicate(int from, int to) { posix_spawn_file_actions_adddup2(&actions_, from, to); }
  void closeFrom(int descriptor) { posix_spawn_file_actions_addclosefrom_np(&actions_, descriptor); }

  const posix_spawn_file_actions_t* get() const { return &actions_; }

 private:
  posix_spawn_file_actions_t actions_ = {};
};

/// The program with its standard error on `errors` and its descriptor 3 on `connection`; no other descriptor of ours
/// reaches it.
std::expected<pid_t, int> spawn(const std::filesystem::path& program, int connection, int errors) {
  FileActions actions;
  actions.openForReading(STDIN_FILENO, "/dev/null");
  actions.duplicate(STDERR_FILENO, STDOUT_FILENO);
  actions.duplicate(errors, STDERR_FILENO);
  actions.duplicate(connection, extensionDescriptor);
  actions.closeFrom(extensionDescriptor + 1);

  std::string name = program.string();
  const std::array<char*, 2> arguments = {name.data(), nullptr};
  pid_t id = 0;
  const int error = posix_spawn(&id, name.c_str(), actions.get(), nullptr, arguments.data(), environ);
  if (error != 0) return std::unexpected(error);
  return id;
}

std::string seconds(std::chrono::milliseconds duration) {
  std::ostringstream text;
  text << std::chrono::duration<double>(duration).count() << " s";
  return text.str();
}

}  // namespace

struct ExtensionProcess::Running {
  Running(foundation::FileDescriptor ours, foundation::FileDescriptor errorPipe)
      : connection(std::move(ours)), errors(std::move(errorPipe)) {}

  foundation::FileDescriptor connection;
  LastLineReader errors;
  std::optional<ChildProcess> child;
};

ExtensionProcess::ExtensionProcess(Options options) : options_(std::move(options)) {}

ExtensionProcess::~ExtensionProcess() {
  stop();
}

std::expected<void, std::string> ExtensionProcess::start() {
  const auto failed = [this](int error) {
    return std::unexpected("the widget extension cannot be started: " + options_.program.string() + ": " +
                           std::strerror(error));
  };

  std::array<int, 2> sockets = {};
  if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, sockets.data()) != 0) return failed(errno);
  foundation::FileDescriptor ours(sockets[0]);
  const foundation::FileDescriptor theirs(sockets[1]);

  std::array<int, 2> pipe = {};
  if (pipe2(pipe.data(), O_CLOEXEC) != 0) return failed(errno);
  foundation::FileDescriptor reading(pipe[0]);
  const foundation::FileDescriptor writing(pipe[1]);

  auto running = std::make_unique<Running>(std::move(ours), std::move(reading));
  const auto id = spawn(options_.program, theirs.get(), writing.get());
  if (!id) return failed(id.error());
  running->child.emplace(*id);
  running_ = std::move(running);
  return {};
}

std::expected<messages::Reply, std::string> ExtensionProcess::ask(const messages::Envelope& envelope,
                                                                  const ReportProgress& report) {
  if (!running_) {
    if (const auto started = start(); !started) return std::unexpected(started.error());
  }
  return exchange(envelope, report);
}

std::expected<messages::Reply, std::string> ExtensionProcess::exchange(const messages::Envelope& envelope,
                                                                       const ReportProgress& report) {
  auto deadline = std::chrono::steady_clock::now() + options_.timeLimit;
  const auto failed = [this](messages::ChannelError error) {
    std::string reason;
    switch (error) {
      case messages::ChannelError::closed:
        reason = "the widget extension stopped: " + whyStopped();
        break;
      case messages::ChannelError::timedOut:
        reason = "the widget extension did not answer within " + seconds(options_.timeLimit);
        break;
      case messages::ChannelError::malformed:
        reason = "the widget extension sent an answer that cannot be read";
        break;
    }
    running_.reset();
    return std::unexpected(reason);
  };

  messages::Channel channel(running_->connection.get());
  if (const auto sent = channel.send(envelope, {}, deadline); !sent) return failed(sent.error());
  while (true) {
    auto frame = channel.receive(deadline);
    if (!frame) return failed(frame.error());
    try {
      auto reply = frame->header.get<messages::Reply>();
      const auto* progress = std::get_if<messages::Progress>(&reply);
      if (progress == nullptr) {
        if (auto* picture = std::get_if<messages::Picture>(&reply)) picture->bytes = std::move(frame->payload);
        return reply;
      }
      if (report) report(*progress);
      deadline = std::chrono::steady_clock::now() + options_.timeLimit;
    } catch (const foundation::JSON::exception&) {
      return failed(messages::ChannelError::malformed);
    }
  }
}

std::string ExtensionProcess::whyStopped() {
  running_->connection = foundation::FileDescriptor();
  if (!running_->child->waitFor(timeToEnd)) running_->child->kill();
  if (auto line = running_->errors.finish(); !line.empty()) return line;
  return running_->child->ending().value_or("it closed the connection");
}

void ExtensionProcess::stop() {
  if (!running_) return;
  running_->connection = foundation::FileDescriptor();
  running_->child->waitFor(timeToEnd);
  running_.reset();
}

}  // namespace host
