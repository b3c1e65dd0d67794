#include "desk/window/run_window.h"

#include <QStandardPaths>

#include "desk/window/window_desk.h"
#include "host/profile_file.h"
#include "od/base/unicode.h"

namespace {

std::filesystem::path profileFile() {
  const QString folder = QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation);
  const std::filesystem::path path(folder.toStdString());
  std::filesystem::create_directories(path);
  return path / "profile.ini";
}

}  // namespace

int runWindow(const std::filesystem::path& drawing, const std::string& module_error) {
  HostProfileFile profile(profileFile());
  WindowDesk desk(profile);
  desk.showWindow();
  if (!module_error.empty()) desk.tell(odToUtf16(module_error));
  if (!drawing.empty()) desk.open(drawing);
  desk.run();
  return 0;
}
