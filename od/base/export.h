#pragma once

#if __cplusplus < 202002L
#error "These headers are C++20: compile with -std=c++20 or newer"
#endif

/// Stands before what a library offers to others. Libraries are compiled with hidden symbols: a function
/// without the mark is not found from outside, and a class without it is another class on each side of the
/// border, so that what is thrown on one side is not caught on the other.
#define SCRIBE_EXPORT __attribute__((visibility("default")))
