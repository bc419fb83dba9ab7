#pragma once

#include <stdexcept>
#include <string>

namespace database {

enum class Fault {
  damaged,   ///< the file is no database, or what it holds is broken
  mismatch,  ///< a table or a row is not as the program knows it
  failed,    ///< the file may be well: it cannot be reached or written, is full, or is being used
};

/// Why a database could not be opened, read or changed. A change that fails has changed nothing.
class Error : public std::runtime_error {
 public:
  Error(Fault fault, const std::string& message) : std::runtime_error(message), fault_(fault) {}
  Fault fault() const { return fault_; }

 private:
  Fault fault_;
};

/// What a result code of SQLite means.
Fault faultOfResult(int code);

}  // namespace database
