#pragma once

#include <string>
#include <string_view>

class HostApplication;
class HostDocument;
struct CommandRecord;

/// Asks for commands and runs them, one after the other.
class HostCommandLoop {
 public:
  /// Both have to outlive the loop.
  HostCommandLoop(HostApplication& application, HostDocument& document);

  /// Asks and runs until the input ends or `stop` is called. A click meanwhile selects, a double click on a
  /// multi-line text edits it, an empty line runs the last command again.
  void runUntilEnd();
  /// Runs one command and what follows it; its `CommandStatus`. An unknown name and an error that comes
  /// through are given to the prompt as refusals and end with `kCommandDone`.
  int run(std::u16string_view name);
  /// Ends `runUntilEnd` after the command that runs now.
  void stop() { m_stopped = true; }

 private:
  int runRecord(const CommandRecord& record);

  HostApplication& m_application;
  HostDocument& m_document;
  std::u16string m_last;
  bool m_stopped = false;
};
