#pragma once

namespace swiftui {

/// Joins lambdas, one for each alternative, into a visitor of a variant.
template <class... Cases>
struct Overload : Cases... {
  using Cases::operator()...;
};
template <class... Cases>
Overload(Cases...) -> Overload<Cases...>;

}  // namespace swiftui
