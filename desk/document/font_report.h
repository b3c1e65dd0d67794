#pragma once

#include <string>
#include <vector>

class OdDbDatabase;

/// The fonts and characters of a drawing that this machine lacks, a sentence each, with what stands in for
/// them. What has not been drawn or measured yet is not known to be missing.
std::vector<std::u16string> substitutedFonts(const OdDbDatabase& database);
