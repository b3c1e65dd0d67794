#pragma once

#include <filesystem>
#include <string>
#include <string_view>

/// SHA-256 of bytes, in hexadecimal.
std::string digestOf(std::string_view bytes);

/// The same of a file's content, which is not held in memory. Empty for a file that cannot be read.
std::string fileDigest(const std::filesystem::path& file);
