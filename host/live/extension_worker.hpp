#pragma once

#include <boost/asio/any_io_executor.hpp>
#include <boost/asio/awaitable.hpp>
#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>

#include "host/extension_process.hpp"

namespace host {

/// The extension as an event loop asks it: requests wait in a queue, one is answered at a time on a thread of its own,
/// so that an extension that does not answer holds nothing else up.
class ExtensionWorker {
 public:
  using Answer = std::expected<messages::Reply, std::string>;
  enum class Urgency { usual, tap };

  ExtensionWorker(boost::asio::any_io_executor executor, ExtensionProcess::Options options);
  ExtensionWorker(const ExtensionWorker&) = delete;
  ExtensionWorker& operator=(const ExtensionWorker&) = delete;
  ~ExtensionWorker();

  /// The answer, on the executor. What is urgent goes before what waits.
  boost::asio::awaitable<Answer> ask(messages::Envelope envelope, Urgency urgency = Urgency::usual);

  /// Lets the process go once the queue is empty; the next request starts it again.
  void letGo();

  /// Requests that wait or are being answered.
  std::size_t pending() const { return pending_; }
  /// Whether the process may be there.
  bool isRunning() const { return isRunning_; }

 private:
  struct Job {
    messages::Envelope envelope = {};
    std::function<void(Answer)> done = nullptr;
    bool letsGo = false;
  };

  void enqueue(Job job, Urgency urgency);
  Answer answered(const messages::Envelope& envelope);
  void work();

  boost::asio::any_io_executor executor_;
  ExtensionProcess process_;
  std::mutex mutex_;
  std::condition_variable wake_;
  std::deque<Job> jobs_;
  bool isStopping_ = false;
  std::size_t pending_ = 0;  // touched on the executor only, as is the next
  bool isRunning_ = false;
  std::thread thread_;
};

}  // namespace host
