#pragma once

#include <string>
#include <string_view>
#include <thread>

#include "foundation/file_descriptor.hpp"

namespace host {

/// The last line of a text that is not blank, without blanks around it.
std::string lastLine(std::string_view text);

/// Reads a pipe on a thread of its own, so that whoever writes into it never waits, and remembers how it ended.
class LastLineReader {
 public:
  /// `pipe` is the reading end.
  explicit LastLineReader(foundation::FileDescriptor pipe);
  LastLineReader(const LastLineReader&) = delete;
  LastLineReader& operator=(const LastLineReader&) = delete;
  ~LastLineReader() { finish(); }

  /// Reads what is still in the pipe, without waiting for more, and stops. The last line, empty if there was none.
  std::string finish();

 private:
  void read();
  /// Takes what is in the pipe at this moment. Whether the pipe is still open.
  bool take();

  foundation::FileDescriptor pipe_;
  foundation::FileDescriptor stop_;
  std::string tail_;  // touched by the thread while it runs, by others afterwards
  std::thread thread_;
};

}  // namespace host
