#pragma once

#include <boost/smart_ptr/intrusive_ptr.hpp>
#include <boost/smart_ptr/intrusive_ref_counter.hpp>
#include <utility>

namespace mtext {

/// A string or a list whose copies share it until one of them is changed: a copy costs a count and no memory.
/// As safe between threads as a value of its own in each copy. An empty one takes no memory at all.
template <class T>
class shared {
 public:
  shared() = default;
  shared(T value) : m_held(value.empty() ? nullptr : new counted(std::move(value))) {}

  const T& get() const {  ///< the value
    static const T nothing{};
    return m_held ? m_held->value : nothing;
  }

  /// The value of this copy alone, to be changed. Other copies keep what they had.
  T& edit() {
    if (!m_held || m_held->use_count() > 1) m_held = new counted(get());
    return m_held->value;
  }

  /// True when both are known to be equal without a look at the value.
  bool is_shared_with(const shared& other) const { return m_held == other.m_held; }

 private:
  struct counted : boost::intrusive_ref_counter<counted> {
    explicit counted(T v) : value(std::move(v)) {}
    T value;
  };

  boost::intrusive_ptr<counted> m_held;
};

}  // namespace mtext
