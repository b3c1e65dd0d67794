#pragma once

#include <filesystem>
#include <string>

/// What a run of the program came to.
struct ProgramRun {
  int exit_code = 0;
  std::string out;
  std::string err;
};

/// Runs the built program with these words, without a display; `input` is its standard input.
ProgramRun runProgram(const std::string& words, const std::string& input = {});

/// A file of the test's own folder, which is empty at first.
std::filesystem::path scratch(const std::string& name);

std::string contentOf(const std::filesystem::path& file);
void writeFile(const std::filesystem::path& file, const std::string& content);

/// The sample drawing, copied to the scratch folder.
std::filesystem::path sampleCopy();
