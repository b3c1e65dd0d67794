#pragma once

#include <string>
#include <vector>

class ScriptDesk;

/// What a script that has run left open or could not do, a sentence each: prompts and questions without an
/// answer, choices that no menu has. `script` names it. Commands that refused have said so themselves.
std::vector<std::string> shortcomingsOf(ScriptDesk& desk, const std::string& script);

/// Whether the script did all that it was to do.
bool didAll(const ScriptDesk& desk);
