#pragma once

#include <string>

#include "desk/script/script_step.h"

struct BatchOrder;

/// Whether the words of an order name a file, which is then a script; else they are a command line.
bool isScriptFile(const std::string& words);

/// The steps of an order. Of a command line the first word is the command, and each further word answers the
/// next prompt. Throws ScriptError and FileError, and std::invalid_argument for a command line without a word
/// and for nothing, or no expression, to be found.
Script orderScript(const BatchOrder& order);
