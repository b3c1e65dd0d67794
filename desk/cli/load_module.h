#pragma once

#include <string>

/// Loads the text module, which brings its commands: `libscribe.so` in the folder `lib` beside the program's,
/// or beside the program itself. Empty when it could be loaded, else one sentence that names the file.
std::string loadModule();
