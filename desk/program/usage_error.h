#pragma once

#include <stdexcept>

/// The program was called in a way that cannot be meant, as only a look at the files shows. `what()` is one
/// sentence.
class UsageError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};
