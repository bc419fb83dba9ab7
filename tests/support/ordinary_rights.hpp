#pragma once

#include <linux/capability.h>
#include <sys/prctl.h>

namespace support {

/// Programs that this thread starts from now on may read and write what an ordinary user may, also where a superuser
/// runs the tests.
inline void startWithOrdinaryRights() {
  for (const int each : {CAP_DAC_OVERRIDE, CAP_DAC_READ_SEARCH}) ::prctl(PR_CAPBSET_DROP, each, 0, 0, 0);
}

}  // namespace support
