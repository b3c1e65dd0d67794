#pragma once

#include <string_view>

/// Whether a shown prompt is the command line's own, which waits for the name of a command.
bool isCommandPrompt(std::u16string_view shown);
