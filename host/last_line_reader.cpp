#include "host/last_line_reader.hpp"

#include <fcntl.h>
#include <poll.h>
#include <sys/eventfd.h>

#include <array>
#include <cerrno>

namespace host {

namespace {

constexpr std::size_t keptBytes = 4096;
constexpr std::string_view blanks = " \t\r\n";

}  // namespace

std::string lastLine(std::string_view text) {
  const auto end = text.find_last_not_of(blanks);
  if (end == std::string_view::npos) return {};
  text = text.substr(0, end + 1);
  if (const auto lineBreak = text.find_last_of('\n'); lineBreak != std::string_view::npos) {
    text.remove_prefix(lineBreak + 1);
  }
  return std::string(text.substr(text.find_first_not_of(blanks)));
}

LastLineReader::LastLineReader(foundation::FileDescriptor pipe)
    : pipe_(std::move(pipe)), stop_(eventfd(0, EFD_CLOEXEC)), thread_([this] { read(); }) {}

std::string LastLineReader::finish() {
  if (thread_.joinable()) {
    eventfd_write(stop_.get(), 1);
    thread_.join();
  }
  return lastLine(tail_);
}

void LastLineReader::read() {
  fcntl(pipe_.get(), F_SETFL, O_NONBLOCK);
  std::array<pollfd, 2> events = {
      {{.fd = pipe_.get(), .events = POLLIN, .revents = 0}, {.fd = stop_.get(), .events = POLLIN, .revents = 0}}};
  bool isOpen = true;
  while (isOpen && events[1].revents == 0) {
    if (poll(events.data(), events.size(), -1) >= 0) isOpen = take();
  }
}

bool LastLineReader::take() {
  std::array<char, 65536> buffer = {};
  // A pipe holds 64 KiB; a few rounds take all that is there, and a writer that never rests does not keep us.
  for (int round = 0; round < 16; ++round) {
    const ssize_t count = ::read(pipe_.get(), buffer.data(), buffer.size());
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return errno == EAGAIN;
    if (count == 0) return false;
    tail_.append(buffer.data(), static_cast<std::size_t>(count));
    if (tail_.size() > keptBytes) tail_.erase(0, tail_.size() - keptBytes);
  }
  return true;
}

}  // namespace host
