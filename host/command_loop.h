#pragma once

#include <string>
#include <string_view>

class HostApplication;
class HostDocument;

/// Asks for commands and runs them, one after the other.
class HostCommandLoop {
 public:
  /// Both have to outlive the loop.
  HostCommandLoop(HostApplication& application, HostDocument& document);

  /// Asks and runs until the input ends or `stop` is called. A click meanwhile selects, a double click on a
  /// multi-line text edits it, an empty line runs the last command again.
  void runUntilEnd();
  /// Runs one command and what follows it; its `CommandStatus`. An unknown name and an error of the drawing
  /// library are told at the command line and count as refused.
  int run(std::u16string_view name);
  /// Ends `runUntilEnd` after the command that runs now.
  void stop() { m_stopped = true; }
  /// Commands that did not come to status 0 since the loop was made, unknown names among them.
  int refused() const { return m_refused; }

 private:
  int refuse(std::u16string_view reason);

  HostApplication& m_application;
  HostDocument& m_document;
  std::u16string m_last;
  bool m_stopped = false;
  int m_refused = 0;
};
