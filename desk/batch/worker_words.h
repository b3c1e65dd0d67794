#pragma once

#include <map>
#include <string>
#include <vector>

#include "desk/texts/drawing_texts.h"

struct BatchWorkerOptions;

/// The kinds of texts by the words of the command line.
const std::map<std::string, TextKind>& kindWords();

/// The command line behind the program's name that starts the process for one drawing.
std::vector<std::string> workerWords(const BatchWorkerOptions& options);
