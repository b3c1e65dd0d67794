#pragma once

#include <initializer_list>
#include <vector>

#include "mtext/shared.h"
#include "mtext/tab_stop.h"

namespace mtext::format {

/// The tab stops of a paragraph. A paragraph takes over those of the one before it, so copies share them: a
/// long list and many paragraphs are no longer than both.
class tab_list {
 public:
  tab_list() = default;
  tab_list(std::vector<tab_stop> stops) : m_stops(std::move(stops)) {}
  tab_list(std::initializer_list<tab_stop> stops) : tab_list(std::vector<tab_stop>(stops)) {}

  const std::vector<tab_stop>& get() const { return m_stops.get(); }  ///< in their order
  operator const std::vector<tab_stop>&() const { return get(); }
  /// The stops of this list alone, to be changed.
  std::vector<tab_stop>& edit() { return m_stops.edit(); }

  bool empty() const { return get().empty(); }  ///< as of the vector, like all that follow
  std::size_t size() const { return get().size(); }
  const tab_stop& operator[](std::size_t index) const { return get()[index]; }
  const tab_stop& front() const { return get().front(); }
  auto begin() const { return get().begin(); }
  auto end() const { return get().end(); }

  /// True when both are known to hold the same stops without a look at them.
  bool is_shared_with(const tab_list& other) const { return m_stops.is_shared_with(other.m_stops); }

 private:
  shared<std::vector<tab_stop>> m_stops;
};

}  // namespace mtext::format
