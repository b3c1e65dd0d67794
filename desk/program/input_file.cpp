#include "desk/program/input_file.h"

#include <fstream>
#include <iostream>
#include <iterator>

#include "desk/program/file_error.h"

namespace {

std::string contentOf(std::istream& stream) {
  return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

}  // namespace

std::string readInput(const std::filesystem::path& file, const std::string& what) {
  if (file == "-") return contentOf(std::cin);
  std::ifstream stream(file, std::ios::binary);
  if (!stream || std::filesystem::is_directory(file)) throw FileError(file, what + " cannot be read.");
  return contentOf(stream);
}

std::string inputName(const std::filesystem::path& file) {
  return file == "-" ? "standard input" : file.string();
}
