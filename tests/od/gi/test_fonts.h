#pragma once

#include <stdlib.h>

#include <filesystem>
#include <fstream>

#include "od/fonts/OdFontLibrary.h"
#include "od/gi/OdGiFontContext.h"

/// Fonts whose every line can be told by heart, in files of their own.
///
/// `box.lff`, capitals 9 high, 3 units between letters: `A` is a stroke from (0,0) up to (0,9) and across to
/// (6,9), so its advance is 9; `I` a stroke straight up, advance 3; a blank advances 6.
class TestFonts : public OdGiFontContext {
 public:
  TestFonts() {
    std::string name = (std::filesystem::temp_directory_path() / "scribe-gi-XXXXXX").string();
    if (mkdtemp(name.data())) m_path = name;
    std::ofstream(m_path / "box.lff") << "# WordSpacing: 6\n[0041] A\n0,0;0,9;6,9\n\n[0049] I\n0,0;0,9\n\n"
                                         "[00B0]\n0,6;3,6\n\n[2205]\n0,0;6,0\n";
    m_library.addSearchPath(m_path.string());
  }
  ~TestFonts() override {
    std::error_code ignored;
    std::filesystem::remove_all(m_path, ignored);
  }

  OdFontLibrary& fontLibrary() const override { return m_library; }

 private:
  std::filesystem::path m_path;
  mutable OdFontLibrary m_library;
};
