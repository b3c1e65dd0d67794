#pragma once

#include <string>
#include <string_view>

/// Compiles the source form of shape fonts to the bytes of a `.shx` file, so that tests can write their fonts
/// as text:
///
///     *0,4,name            the font's head: above, below, modes, 0; `*UNIFONT,6,name` for a unifont;
///     21,7,0,0             first a line `*BIGFONT characters,ranges,first,last` for a big font
///     *65,3,lca            a shape: number, size (not read), name; small names are dropped
///     2,(8,-3,044),0       bytes, 0 at the start makes a number hexadecimal, parentheses are decoration
///
/// A hexadecimal number of five letters, such as `000E4`, is two bytes, the high one first.
std::string compileShp(std::string_view source);
