#pragma once

#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <string>

/// A fresh folder for font files that goes away with its object.
class FontFolder {
 public:
  FontFolder() {
    std::string name = (std::filesystem::temp_directory_path() / "scribe-fonts-XXXXXX").string();
    if (mkdtemp(name.data())) m_path = name;
  }
  ~FontFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(m_path, ignored);
  }
  FontFolder(const FontFolder&) = delete;
  FontFolder& operator=(const FontFolder&) = delete;

  std::string path() const { return m_path.string(); }
  void write(const std::string& name, const std::string& bytes) const {
    std::ofstream(m_path / name, std::ios::binary) << bytes;
  }

 private:
  std::filesystem::path m_path;
};
