#include "host/message_filter.h"

#include <algorithm>

void HostMessages::pushFilter(HostEdMessageFilter& filter, int level) {
  const auto place = std::find_if(m_entries.begin(), m_entries.end(),
                                  [level](const Entry& entry) { return entry.level <= level; });
  m_entries.insert(place, {&filter, level});
}

void HostMessages::popFilter(HostEdMessageFilter& filter) {
  const auto found = std::find_if(m_entries.begin(), m_entries.end(),
                                  [&filter](const Entry& entry) { return entry.filter == &filter; });
  if (found != m_entries.end()) m_entries.erase(found);
}

bool HostMessages::offer(const HostWindowMessage& message) {
  // A copy of the list is walked, since a filter may push and pop; one that has gone meanwhile is not asked.
  const std::vector<Entry> asked = m_entries;
  return std::any_of(asked.begin(), asked.end(), [&](const Entry& entry) {
    return holds(entry.filter) && entry.filter->filterMessage(message, message.point);
  });
}

bool HostMessages::holds(const HostEdMessageFilter* filter) const {
  return std::any_of(m_entries.begin(), m_entries.end(),
                     [filter](const Entry& entry) { return entry.filter == filter; });
}
