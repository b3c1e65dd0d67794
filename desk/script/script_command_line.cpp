#include "desk/script/script_command_line.h"

#include "desk/document/command_prompt.h"

bool ScriptCommandLine::awaitsCommand() const { return isCommandPrompt(m_prompt); }
