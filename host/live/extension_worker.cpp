#include "host/live/extension_worker.hpp"

#include <boost/asio/async_result.hpp>
#include <boost/asio/post.hpp>
#include <boost/asio/use_awaitable.hpp>

namespace host {

namespace asio = boost::asio;

ExtensionWorker::ExtensionWorker(asio::any_io_executor executor, ExtensionProcess::Options options)
    : executor_(std::move(executor)), process_(std::move(options)), thread_([this] { work(); }) {}

ExtensionWorker::~ExtensionWorker() {
  {
    const std::scoped_lock lock(mutex_);
    isStopping_ = true;
    jobs_.clear();
  }
  wake_.notify_one();
  thread_.join();
}

asio::awaitable<ExtensionWorker::Answer> ExtensionWorker::ask(messages::Envelope envelope, Urgency urgency) {
  ++pending_;
  isRunning_ = true;
  auto initiate = [this, &envelope, urgency](auto handler) {
    auto shared = std::make_shared<decltype(handler)>(std::move(handler));
    enqueue({.envelope = std::move(envelope),
             .done =
                 [this, shared](Answer answer) {
                   asio::post(executor_,
                              [shared, answer = std::move(answer)]() mutable { (*shared)(std::move(answer)); });
                 }},
            urgency);
  };
  Answer answer =
      co_await asio::async_initiate<const asio::use_awaitable_t<>, void(Answer)>(initiate, asio::use_awaitable);
  --pending_;
  co_return answer;
}

void ExtensionWorker::letGo() {
  isRunning_ = false;
  enqueue({.letsGo = true}, Urgency::usual);
}

void ExtensionWorker::enqueue(Job job, Urgency urgency) {
  {
    const std::scoped_lock lock(mutex_);
    if (urgency == Urgency::tap) {
      jobs_.push_front(std::move(job));
    } else {
      jobs_.push_back(std::move(job));
    }
  }
  wake_.notify_one();
}

ExtensionWorker::Answer ExtensionWorker::answered(const messages::Envelope& envelope) {
  constexpr std::chrono::seconds atOnce(1);
  const auto begin = std::chrono::steady_clock::now();
  Answer answer = process_.ask(envelope);
  // A process that somebody ended is missed only by the next request; that one is asked again of a new process.
  if (!answer && std::chrono::steady_clock::now() - begin < atOnce) answer = process_.ask(envelope);
  return answer;
}

void ExtensionWorker::work() {
  std::unique_lock lock(mutex_);
  while (true) {
    wake_.wait(lock, [this] { return isStopping_ || !jobs_.empty(); });
    if (isStopping_) return;
    Job job = std::move(jobs_.front());
    jobs_.pop_front();
    lock.unlock();
    if (job.letsGo) {
      process_.stop();
    } else {
      job.done(answered(job.envelope));
    }
    job = {};
    lock.lock();
  }
}

}  // namespace host
