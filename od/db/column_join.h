#pragma once

#include <string>
#include <vector>

/// One text with format codes of texts that stand for themselves, each where the one before ends. What a text
/// leaves open, a font or a height or a brace, ends with it, and its first paragraph begins as it would alone
/// when the text before ended with a paragraph. Texts without such codes are put together as they are.
std::u16string odJoinColumns(const std::vector<std::u16string>& texts);
