#pragma once

#include <set>
#include <string>

#include "foundation/uuid.hpp"
#include "host/server/http_message.hpp"

namespace host {

/// Who may use the home screen: a browser that was let in by a one-time address, on this machine, from the page itself.
///
/// Other programs of this machine reach the port, pages of other sites reach it through the browser, and a name that
/// was made to point here reaches it past the browser's own rules. So every request has to name one of the addresses
/// that are served, must not come from another site, and carries the token in a cookie that no script can read.
class Access {
 public:
  /// `token` has 128 bits, as hexadecimal digits.
  Access(int port, std::string token, foundation::RandomSource random);

  /// "http://127.0.0.1:4127"
  std::string origin() const;
  /// An address that lets in the first browser that opens it.
  std::string newAddress();

  /// The answer to a request that is not let through, and to one that lets a browser in; nothing where the request may
  /// pass.
  std::optional<HTTPResponse> answer(const HTTPRequest& request);

 private:
  bool hasCookie(const HTTPRequest& request) const;

  int port_;
  std::string token_;
  foundation::RandomSource random_;
  std::set<std::string> oneTimeKeys_ = {};
};

/// 128 bits as 32 hexadecimal digits.
std::string newToken(const foundation::RandomSource& random);

/// Whether two texts are equal, in a time that does not depend on where they differ.
bool isEqualInConstantTime(std::string_view a, std::string_view b);

}  // namespace host
