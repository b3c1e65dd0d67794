#pragma once

#include <cstddef>
#include <string>

#include "od/base/OdError.h"

namespace dxf {

/// A drawing that cannot be read or written. `what` is one sentence: the file's name, the place and the
/// reason.
class Error : public OdError {
 public:
  /// A failure without a place inside the file.
  Error(const std::string& file, const std::string& reason);
  /// A failure at `line` (from 1) of a drawing in text form.
  static Error at_line(const std::string& file, std::size_t line, const std::string& reason);
  /// A failure at the byte `offset` (from 0) of a binary drawing.
  static Error at_offset(const std::string& file, std::size_t offset, const std::string& reason);

  /// The line of the failure, 0 where there is none.
  std::size_t line() const { return line_; }

 private:
  Error(const std::string& sentence, std::size_t line);

  std::size_t line_ = 0;
};

}  // namespace dxf
