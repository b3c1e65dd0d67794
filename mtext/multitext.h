#pragma once

#include <boost/ptr_container/ptr_vector.hpp>

#include "mtext/part.h"

namespace mtext {

/// A formatted text before layout: the format of the first paragraph, and the parts in text order.
/// It owns its parts; a copy clones them. Pushing a null pointer throws `boost::bad_pointer`.
struct multitext {
  /// Format of the paragraph that no `new_paragraph` opens.
  format::paragraph paragraph;
  boost::ptr_vector<part, boost::heap_clone_allocator> parts;
};

}  // namespace mtext
