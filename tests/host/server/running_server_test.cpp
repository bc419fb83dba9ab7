#include "host/server/running_server.hpp"

#include <gtest/gtest.h>

#include <sstream>

namespace {

TEST(RunningServer, IsKnownByWhoListens) {
  // A server of user 1000 on 4127, one of user 1001 on 4128, a connection from 4129, a server beyond this machine on
  // 4130.
  const std::string table =
      "  sl  local_address rem_address   st tx_queue rx_queue tr tm->when retrnsmt   uid  timeout inode\n"
      "   0: 0100007F:101F 00000000:0000 0A 00000000:00000000 00:00000000 00000000  1000        0 11 1 0 100 0 0 10 0\n"
      "   1: 0100007F:1020 00000000:0000 0A 00000000:00000000 00:00000000 00000000  1001        0 12 1 0 100 0 0 10 0\n"
      "   2: 0100007F:1021 0100007F:101F 01 00000000:00000000 00:00000000 00000000  1000        0 13 1 0 100 0 0 10 0\n"
      "   3: 00000000:1022 00000000:0000 0A 00000000:00000000 00:00000000 00000000  1000        0 14 1 0 100 0 0 10 "
      "0\n";
  for (const auto& [port, isOurs] :
       {std::pair(4127, true), {4128, false}, {4129, false}, {4130, false}, {4131, false}}) {
    std::istringstream stream(table);
    EXPECT_EQ(host::isListening(stream, port, 1000), isOurs) << port;
  }
}

}  // namespace
