#pragma once

#include "host/windowless/window.h"

class ScriptSource;

/// The window of a script: a menu gets a choice that was given before, or else the one in the next step.
/// Without either it is closed again and nothing is chosen.
class ScriptWindow : public WindowlessWindow {
 public:
  /// The source has to outlive the last menu.
  void setSource(ScriptSource& source) { m_source = &source; }
  int popupMenu(const HostMenu& menu, HostPixel at) override;

 private:
  ScriptSource* m_source = nullptr;
};
