#pragma once

#include <string>

/// Prints an angle of radians as prompts read it: in degrees, with as many decimals at most as AUPREC of the
/// drawing that the user works on tells.
std::u16string hostdbAngToS(double radians);
