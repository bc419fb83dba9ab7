#pragma once

#include <boost/asio/co_spawn.hpp>
#include <boost/asio/io_context.hpp>
#include <chrono>
#include <concepts>
#include <memory>
#include <optional>

namespace live_test {

/// Runs the context until the condition holds; false where it does not in time.
bool runUntil(boost::asio::io_context& context, std::predicate auto condition,
              std::chrono::milliseconds limit = std::chrono::seconds(20)) {
  const auto deadline = std::chrono::steady_clock::now() + limit;
  while (!condition()) {
    if (std::chrono::steady_clock::now() >= deadline) return false;
    context.restart();
    context.run_one_for(std::chrono::milliseconds(20));
  }
  return true;
}

/// Begins a task; its result is in the returned place once it has ended.
template <class Value>
std::shared_ptr<std::optional<Value>> begin(boost::asio::io_context& context, boost::asio::awaitable<Value> task) {
  auto result = std::make_shared<std::optional<Value>>();
  boost::asio::co_spawn(context, std::move(task), [result](const std::exception_ptr& error, Value value) {
    if (error) std::rethrow_exception(error);
    *result = std::move(value);
  });
  return result;
}

/// The same for a task without a result: true once it has ended.
inline std::shared_ptr<bool> begin(boost::asio::io_context& context, boost::asio::awaitable<void> task) {
  auto hasEnded = std::make_shared<bool>(false);
  boost::asio::co_spawn(context, std::move(task), [hasEnded](const std::exception_ptr& error) {
    if (error) std::rethrow_exception(error);
    *hasEnded = true;
  });
  return hasEnded;
}

}  // namespace live_test
