#pragma once

namespace micui {

/// A shape that is something else as well, such as an `mtext::resizer`.
template <typename Shape, typename Mixin>
class mixin : public Shape, public Mixin {};

}  // namespace micui
