#pragma once

#include "host/message_filter.h"

class smart_edit;

/// The door through which all input of a session comes. While it stands, no key reaches the command line, and
/// no error of a handler ends the session.
class session_filter : public HostEdMessageFilter {
 public:
  /// The session owns the filter.
  explicit session_filter(smart_edit& session) : m_session(session) {}

  bool filterMessage(const HostWindowMessage& message, const OdGePoint3d& point) override;

 private:
  bool handle(const HostWindowMessage& message, const OdGePoint3d& point);
  void press(const HostWindowMessage& message, const OdGePoint3d& point);
  void drag(const OdGePoint3d& point);
  void release(const OdGePoint3d& point);
  void selectWord(const OdGePoint3d& point);
  void setCursor(const OdGePoint3d& point);

  smart_edit& m_session;
};
