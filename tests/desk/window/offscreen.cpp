#include "tests/desk/window/offscreen.h"

QApplication& offscreenApplication() {
  static int count = 1;
  static char name[] = "test";
  static char* arguments[] = {name, nullptr};
  static const bool chosen = qputenv("QT_QPA_PLATFORM", "offscreen");
  static QApplication application(count, arguments);
  static_cast<void>(chosen);
  return application;
}
