#pragma once

class HostClipboard;
class HostDocument;
class HostTickSource;
class HostWindow;
class ICmdFactory;
class IEvents;
class IHelpService;
class IKeyState;
class IParam;
class IProfile;

/// The application as its modules see it. All references live as long as it does.
class HostApplication {
 public:
  virtual ~HostApplication() = default;

  /// The drawing that has the user's attention; null when none is open.
  virtual HostDocument* activeDocument() = 0;
  virtual ICmdFactory& commandFactory() = 0;
  virtual IEvents& events() = 0;
  virtual IHelpService& help() = 0;
  virtual IProfile& profile() = 0;
  /// Root of the settings tree.
  virtual IParam& settings() = 0;
  virtual HostClipboard& clipboard() = 0;
  virtual IKeyState& keyState() = 0;
  /// What timers run on.
  virtual HostTickSource& ticks() = 0;
  /// Cursor, mouse capture and menus of the drawing view.
  virtual HostWindow& window() = 0;
  /// Has what was invalidated painted. A window paints when the handler that asked is done, since a text may
  /// not be laid out yet when it asks.
  virtual void updateNow() = 0;
};
