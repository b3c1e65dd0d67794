#pragma once

#include <filesystem>
#include <vector>

/// The drawings of the folder `shared/data` beside the source tree and of the tree's own `samples`, sorted.
/// Prints one line when the former is absent.
std::vector<std::filesystem::path> sample_drawings();
