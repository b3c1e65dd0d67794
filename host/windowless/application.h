#pragma once

#include "host/application.h"
#include "host/clipboard.h"
#include "host/command_line.h"
#include "host/events.h"
#include "host/help.h"
#include "host/key_state.h"
#include "host/profile.h"
#include "host/running_application.h"
#include "host/settings.h"
#include "host/windowless/clock.h"
#include "host/windowless/document.h"
#include "host/windowless/queued_input.h"
#include "host/windowless/window.h"

/// The whole application in memory around one drawing: what tests and scripts run on. It is the running
/// application for as long as it lives.
class WindowlessApplication : public HostApplication {
 public:
  /// Input comes from `input()`, or from `source`, which has to outlive the application.
  explicit WindowlessApplication(OdSmartPtr<OdDbDatabase> database, HostInputSource* source = nullptr);

  WindowlessDocument* activeDocument() override { return &m_document; }
  ICmdFactory& commandFactory() override;
  HostAnsweredEvents& events() override { return m_events; }
  HostHelpLog& help() override { return m_help; }
  IProfile& profile() override { return m_profile; }
  HostSettings& settings() override { return m_settings; }
  HostMemoryClipboard& clipboard() override { return m_clipboard; }
  HostHeldKeys& keyState() override { return m_keys; }
  WindowlessClock& ticks() override { return m_clock; }
  WindowlessWindow& window() override { return m_window; }
  void updateNow() override;

  WindowlessDocument& document() { return m_document; }
  WindowlessInput& input() { return m_input; }
  HostCommandLog& log() { return m_log; }
  /// How often painting was asked for.
  int updates() const { return m_updates; }

 private:
  WindowlessInput m_input;
  HostCommandLog m_log;
  WindowlessClock m_clock;
  HostAnsweredEvents m_events;
  HostHelpLog m_help;
  HostMemoryProfile m_profile;
  HostSettings m_settings;
  HostMemoryClipboard m_clipboard;
  HostHeldKeys m_keys;
  WindowlessWindow m_window;
  WindowlessDocument m_document;
  int m_updates = 0;
  host::RunningApplication m_running;
};
