#pragma once

#include <functional>

#include "host/application.h"
#include "host/running_application.h"

class DeskDocument;

/// The services of the machine that the desk stands on: a window's, or those in memory. All outlive the
/// application.
struct DeskServices {
  IEvents& events;
  IHelpService& help;
  IProfile& profile;
  IParam& settings;
  HostClipboard& clipboard;
  IKeyState& key_state;
  HostTickSource& ticks;
  HostWindow& window;
  /// Has what is invalid painted when the prompt waits again: a session asks for it in the midst of an edit,
  /// when its text is not laid out yet.
  std::function<void()> update_now;
};

/// The application as its modules see it, around the drawing that lies on the desk. It is the running one for
/// as long as it lives.
class DeskApplication : public HostApplication {
 public:
  explicit DeskApplication(DeskServices services);

  /// Puts a drawing on the desk; it has to stay until it is replaced.
  void setDocument(DeskDocument* document) { m_document = document; }

  HostDocument* activeDocument() override;
  ICmdFactory& commandFactory() override;
  IEvents& events() override { return m_services.events; }
  IHelpService& help() override { return m_services.help; }
  IProfile& profile() override { return m_services.profile; }
  IParam& settings() override { return m_services.settings; }
  HostClipboard& clipboard() override { return m_services.clipboard; }
  IKeyState& keyState() override { return m_services.key_state; }
  HostTickSource& ticks() override { return m_services.ticks; }
  HostWindow& window() override { return m_services.window; }
  void updateNow() override { m_services.update_now(); }

 private:
  DeskServices m_services;
  DeskDocument* m_document = nullptr;
  host::RunningApplication m_running;
};
