#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "od/dxf/form.h"
#include "od/dxf/group.h"
#include "od/dxf/text_codec.h"

namespace dxf {

/// The number behind "AC" in the header variable $ACADVER: the releases that change how a drawing is stored.
enum Version : int {
  R12 = 1009,  ///< also everything older, and drawings that do not say
  R13 = 1012,
  R14 = 1014,
  R2000 = 1015,
  R2004 = 1018,
  R2007 = 1021,  ///< strings are UTF-8 from here
  R2010 = 1024,
  R2013 = 1027,
  R2018 = 1032
};

/// How one file writes its groups. New and changed groups are written in the same manner, so that they do not
/// stand out.
struct Manner {
  Form form = Form::ascii;
  Version version = R12;
  bool one_byte_codes = false;  ///< binary drawings up to R12
  std::string line_end = "\n";
  int code_width = 3;   ///< codes are right aligned in so many columns
  int int16_width = 0;  ///< the same for integers by type; 0: as short as they are
  int int32_width = 0;
  int int64_width = 0;
  int boolean_width = 0;
  TextCodec codec = TextCodec::code_page("ansi_1252", Form::ascii);

  /// Columns in which integers of `type` are right aligned.
  int width_of(ValueType type) const;

  /// A new group with the value `value`, given in the bytes of this manner's form.
  Group make(int code, std::string_view value) const;
  /// `old` with another value; the bytes around the value stay as they are.
  Group with_value(const Group& old, std::string_view value) const;

  /// The bytes of a real. Throws `OdError(eInvalidInput)` for infinities and what is not a number.
  std::string bytes_of_double(double value) const;
  /// The bytes of an integer of the type of `code`, in `width` columns where the form has columns. Throws
  /// `OdError(eInvalidInput)` where the value does not fit the type.
  std::string bytes_of_int(int code, std::int64_t value, int width) const;
  /// Hexadecimal digits in upper case, or the bytes themselves.
  std::string bytes_of_binary(std::string_view data) const;
};

}  // namespace dxf
