#pragma once

#include <string>
#include <vector>

/// Where shape fonts lie on this machine: the font folders of the user and of the system, and in each the
/// folder "shx". Folders that are not there are among them.
std::vector<std::string> odShapeFontFolders();
