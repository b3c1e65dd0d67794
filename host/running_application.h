#pragma once

class HostApplication;

namespace host {

/// The application that serves the exports of the main module; null if none runs.
HostApplication* running_application();

/// Makes an application the running one for as long as the guard lives; the one before comes back after it.
class RunningApplication {
 public:
  explicit RunningApplication(HostApplication& application);
  ~RunningApplication();
  RunningApplication(const RunningApplication&) = delete;
  RunningApplication& operator=(const RunningApplication&) = delete;

 private:
  HostApplication* m_before;
};

}  // namespace host
