#include "od/fonts/shape_font_folders.h"

#include <cstdlib>
#include <sstream>

namespace {

std::string variable(const char* name, const std::string& otherwise) {
  const char* value = std::getenv(name);
  return value && *value ? value : otherwise;
}

}  // namespace

std::vector<std::string> odShapeFontFolders() {
  const std::string home = variable("HOME", "");
  std::istringstream shared(variable("XDG_DATA_HOME", home + "/.local/share") + ":" +
                            variable("XDG_DATA_DIRS", "/usr/local/share:/usr/share"));
  std::vector<std::string> folders;
  for (std::string base; std::getline(shared, base, ':');) {
    if (base.empty()) continue;
    folders.push_back(base + "/fonts");
    folders.push_back(base + "/fonts/shx");
  }
  return folders;
}
