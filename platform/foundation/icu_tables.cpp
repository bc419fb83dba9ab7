#include "foundation/icu_tables.hpp"

#include <dlfcn.h>
#include <unicode/udata.h>

#include <cstdint>
#include <string>

#include "foundation/fatal_error.hpp"

namespace {

/// A table of contents by pointers, as ICU's code expects to find one linked to it.
struct Tables {
  std::uint16_t headerSize = 32;
  std::uint8_t magic1 = 0xDA;
  std::uint8_t magic2 = 0x27;
  UDataInfo info{.size = sizeof(UDataInfo),
                 .reservedWord = 0,
                 .isBigEndian = U_IS_BIG_ENDIAN,
                 .charsetFamily = U_CHARSET_FAMILY,
                 .sizeofUChar = sizeof(UChar),
                 .reservedByte = 0,
                 .dataFormat = {'T', 'o', 'C', 'P'},
                 .formatVersion = {1, 0, 0, 0},
                 .dataVersion = {0, 0, 0, 0}};
  char padding[8] = {};
  std::uint32_t count = 0;
  std::uint32_t reserved = 0;
};

}  // namespace

// What ICU's code finds under this name is empty: it looks there when the tables that were given to it lack something.
extern "C" {
extern const Tables U_ICUDATA_ENTRY_POINT;
alignas(16) const Tables U_ICUDATA_ENTRY_POINT;
}

namespace foundation {
namespace {

#define MIRUNE_TEXT_OF(name) #name
#define MIRUNE_EXPANDED_TEXT_OF(name) MIRUNE_TEXT_OF(name)
constexpr const char* library = "libicudata.so." U_ICU_VERSION_SHORT;
constexpr const char* name = MIRUNE_EXPANDED_TEXT_OF(U_ICUDATA_ENTRY_POINT);

}  // namespace

void openICUTables() {
  void* const handle = dlopen(library, RTLD_LAZY | RTLD_LOCAL);
  const void* const tables = handle != nullptr ? dlsym(handle, name) : nullptr;
  if (tables == nullptr) fatalError(std::string("ICU's tables are missing: ") + library);
  UErrorCode status = U_ZERO_ERROR;
  udata_setCommonData(tables, &status);
  if (U_FAILURE(status) != 0) fatalError(std::string("ICU's tables are damaged: ") + u_errorName(status));
}

}  // namespace foundation
