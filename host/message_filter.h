#pragma once

#include <vector>

#include "host/input.h"

/// Base of everything that watches the input while a prompt waits.
class HostEdMessageFilter {
 public:
  virtual ~HostEdMessageFilter() = default;
  /// Gets a window message and the world point of the cursor; true consumes the message.
  virtual bool filterMessage(const HostWindowMessage& message, const OdGePoint3d& point) = 0;
};

/// The filters of a document. They are asked from the highest level down, within a level the latest first;
/// the first one that consumes a message ends its road. A filter may leave, and others come, while one is
/// asked.
class HostMessages {
 public:
  /// Adds a filter, which the caller keeps alive until `popFilter`.
  void pushFilter(HostEdMessageFilter& filter, int level);
  /// Removes a filter; nothing happens if it is not there.
  void popFilter(HostEdMessageFilter& filter);
  /// Offers a message; true if a filter consumed it.
  bool offer(const HostWindowMessage& message);
  /// True when a filter of this level or a higher one is there.
  bool hasLevel(int level) const { return !m_entries.empty() && m_entries.front().level >= level; }
  /// Number of filters.
  std::size_t size() const { return m_entries.size(); }

 private:
  struct Entry {
    HostEdMessageFilter* filter;
    int level;
  };
  bool holds(const HostEdMessageFilter* filter) const;

  std::vector<Entry> m_entries;  // in the order in which they are asked
};
