#include "database/error.hpp"

#include <sqlite3.h>

namespace database {

Fault faultOfResult(int code) {
  switch (code) {
    case SQLITE_CORRUPT:
    case SQLITE_NOTADB:
    case SQLITE_FORMAT:
      return Fault::damaged;
    case SQLITE_ERROR:  // a statement that the schema does not fit; an unknown file format
    case SQLITE_CONSTRAINT:
    case SQLITE_MISMATCH:
      return Fault::mismatch;
    default:
      return Fault::failed;
  }
}

}  // namespace database
