#pragma once

#include <optional>
#include <string>

class HostEdPrompt;

/// Asks for one of the fifteen justifications: its place in `justify_rows`, or the `HostAnswer` of the
/// prompt. An empty line answers `kAnswerNothing`.
int ask_justification(HostEdPrompt& prompt);

/// Name of a justification in the user's language.
std::u16string justification_name(int index);

/// The justification that a word means in every language, or nothing; "Start" is the left one.
std::optional<int> justification_of(const std::u16string& global_name);
