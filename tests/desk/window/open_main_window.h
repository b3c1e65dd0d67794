#pragma once

#include <QApplication>

#include "desk/window/main_window.h"

/// The window of the desk that is open; null when none is.
inline MainWindow* mainWindow() {
  for (QWidget* each : QApplication::topLevelWidgets())
    if (auto* main = qobject_cast<MainWindow*>(each)) return main;
  return nullptr;
}
