#pragma once

#include <string_view>

/// The code of a field, taken apart. The pieces lie in the code that was read.
struct OdFieldCode {
  std::u16string_view evaluator;  ///< `AcVar` of `\AcVar.17.0 Date \f "yyyy"`
  std::u16string_view subject;    ///< `Date`: what stands between evaluator and format, without outer blanks
  std::u16string_view format;     ///< `yyyy`; empty where none is given
};

/// Reads a code as it is kept, without markers around it.
OdFieldCode odReadFieldCode(std::u16string_view code);
