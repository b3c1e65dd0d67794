#pragma once

#include <stdlib.h>

#include <filesystem>
#include <fstream>

#include "od/fonts/OdFontLibrary.h"
#include "od/gi/OdGiFontContext.h"

/// Fonts whose every line can be told by heart, in files of their own.
///
/// `down.shx`, capitals 6 high, runs downwards in vertical text: `A` is a stroke straight up that hangs 3 to
/// the left of the pen, and the pen goes down by 10.
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
    std::ofstream(m_path / "down.shx", std::ios::binary) << downwards();
    m_library.addSearchPath(m_path.string());
  }
  ~TestFonts() override {
    std::error_code ignored;
    std::filesystem::remove_all(m_path, ignored);
  }

  OdFontLibrary& fontLibrary() const override { return m_library; }

 private:
  /// A head with the vertical mode, and the letter A.
  static std::string downwards() {
    const std::string head{'\0', 6, 2, 2, 0};
    const std::string letter{'\0', 2, 14, 8, -3, -6, 1, 0x64, 2, 0x60, 14, 8, -3, -10, 0};
    auto word = [](std::size_t value) { return std::string{static_cast<char>(value), '\0'}; };
    return "Test shapes 1.0\r\n\x1A" + word(0) + word('A') + word(2) + word(0) + word(head.size()) +
           word('A') + word(letter.size()) + head + letter;
  }

  std::filesystem::path m_path;
  mutable OdFontLibrary m_library;
};
