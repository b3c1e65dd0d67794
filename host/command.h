#pragma once

#include "host/unknown.h"

/// What a run of a command came to.
enum CommandStatus : int {
  kCommandDone = 0,       ///< finished, or ended after a refusal that was told to the user
  kCommandCancelled = 1,  ///< the user cancelled
  kCommandRunning = 2,
};

/// Something that can be run once.
class ICmdRun : public IKrUnknown {
 public:
  using Parent = IKrUnknown;
  static constexpr std::string_view kInterfaceName = "ICmdRun";

  /// Does the work and returns a `CommandStatus`. Errors of the drawing library may come through.
  virtual int run() = 0;
};

/// A command in the making: one object a run, made by a creator of the command factory.
class ICmdProcess : public ICmdRun {
 public:
  using Parent = ICmdRun;
  static constexpr std::string_view kInterfaceName = "ICmdProcess";

  /// The `CommandStatus` now.
  virtual int status() const = 0;
  /// The process to run behind this one; may be null.
  virtual OdSmartPtr<ICmdProcess> followUp() const = 0;
  virtual void setFollowUp(OdSmartPtr<ICmdProcess> next) = 0;
};

/// Counting, status and follow-up of every command class; a command has to write `run` alone.
class CCmdProcess : public CKrUnknownImpl<ICmdProcess> {
 public:
  int status() const override { return m_status; }
  OdSmartPtr<ICmdProcess> followUp() const override { return m_follow_up; }
  void setFollowUp(OdSmartPtr<ICmdProcess> next) override { m_follow_up = std::move(next); }

 protected:
  /// Sets the status and returns it, so that `run` can end with it.
  int setStatus(int status) { return m_status = status; }

 private:
  OdSmartPtr<ICmdProcess> m_follow_up;
  int m_status = kCommandRunning;
};
