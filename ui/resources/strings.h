#pragma once

#include <span>

#include "host/translate.h"

/// What the module says to its user.
namespace resources {

/// Every string by its number, in ascending order.
std::span<const ResourceString> string_table();

/// Enters the table at the host, so that `host::resource_string` finds its rows. Again and again changes
/// nothing.
void register_strings();

}  // namespace resources
