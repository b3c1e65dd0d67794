#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <iterator>

/// A test with a folder of its own, which is empty at first.
class ScratchFolder : public testing::Test {
 protected:
  ScratchFolder() {
    std::string name = (std::filesystem::temp_directory_path() / "scribe-batch-test-XXXXXX").string();
    folder = std::filesystem::canonical(::mkdtemp(name.data()));
  }
  ~ScratchFolder() override { std::filesystem::remove_all(folder); }

  std::filesystem::path put(const std::filesystem::path& name, const std::string& content = {}) const {
    std::filesystem::create_directories((folder / name).parent_path());
    std::ofstream(folder / name, std::ios::binary) << content;
    return folder / name;
  }
  static std::string contentOf(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
  }

  std::filesystem::path folder;
};
