#pragma once

#include "desk/document/desk.h"
#include "host/command.h"
#include "host/prompt.h"

/// Base of the desk's own commands: a command that knows the desk.
class DeskCommand : public CCmdProcess {
 public:
  /// The desk has to outlive the command.
  explicit DeskCommand(Desk& desk) : m_desk(desk) {}

 protected:
  Desk& desk() { return m_desk; }
  HostEdPrompt& prompt() { return m_desk.document().prompt(); }

 private:
  Desk& m_desk;
};
