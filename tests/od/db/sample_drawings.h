#pragma once

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

/// The drawings of other programs that lie beside a working tree, in name order; none where there are none.
inline std::vector<std::filesystem::path> foreignDrawings() {
  std::vector<std::filesystem::path> files;
  const std::filesystem::path folder = SCRIBE_SOURCE_DIR "/../shared/data";
  if (std::filesystem::is_directory(folder)) {
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
      if (entry.path().extension() == ".dxf") files.push_back(entry.path());
    }
  }
  std::sort(files.begin(), files.end());
  return files;
}

inline std::string bytesOf(const std::filesystem::path& path) {
  std::ifstream in(path, std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(in), {});
}
