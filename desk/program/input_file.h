#pragma once

#include <filesystem>
#include <string>

/// The bytes of a file, or of standard input for "-". `what` names it in the sentence of the FileError that a
/// file throws which cannot be read: "the script".
std::string readInput(const std::filesystem::path& file, const std::string& what);

/// What such a file is called in messages.
std::string inputName(const std::filesystem::path& file);
