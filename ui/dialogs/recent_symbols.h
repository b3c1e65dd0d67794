#pragma once

#include <vector>

class IProfile;

namespace dialogs {

/// As many characters are remembered as the dialog has places for.
inline constexpr std::size_t kMostRecent = 16;

/// The characters that the user took last, newest first.
std::vector<char32_t> recent_symbols(const IProfile& profile);

/// Puts a character in front of those that are remembered.
void remember_symbol(IProfile& profile, char32_t character);

}  // namespace dialogs
