#pragma once

#include <span>

/// The pictures of the module.
namespace resources {

/// A picture by its number.
struct ResourceIcon {
  int number;
  const char* file;  ///< name of its file, without ".svg"
};

/// Every picture, in the order in which a toolbar loads them. The first three are loaded and not shown.
std::span<const ResourceIcon> icon_table();

/// The file of a number. Throws `std::invalid_argument` for a number that has none.
const char* icon_file(int number);

}  // namespace resources
