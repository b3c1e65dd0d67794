#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "od/dxf/value_type.h"

namespace dxf {

/// One group of a drawing: a code and a value, kept as the bytes that stand in the file.
///
/// A group that was read points into the bytes of its `File` and must not outlive it; a group that was made
/// or changed owns its bytes and shares them with its copies. The bytes are never interpreted here.
class Group {
 public:
  /// A group as it stands in a file: `bytes` is the whole of it with code and line ends, `value` the part of
  /// `bytes` that is the value; `line` counts from 1 and is 0 in a binary drawing.
  Group(int code, std::string_view bytes, std::string_view value, std::uint32_t line)
      : bytes_(bytes), value_(value), code_(code), line_(line) {}

  /// A new group that owns its bytes; the value is `value_size` bytes at `value_begin`.
  static Group owning(int code, std::string bytes, std::size_t value_begin, std::size_t value_size,
                      std::uint32_t line = 0);

  int code() const { return code_; }
  ValueType type() const { return value_type(code_); }

  /// The value's bytes, without line end, closing zero or length byte.
  std::string_view value() const { return value_; }
  /// All bytes that writing this group gives.
  std::string_view bytes() const { return bytes_; }
  /// Line of the code in the file it was read from; 0 for new groups and in binary drawings.
  std::uint32_t line() const { return line_; }
  /// True when the group was made or changed since the file was read.
  bool changed() const { return owned_ != nullptr; }

 private:
  std::shared_ptr<const std::string> owned_;
  std::string_view bytes_;
  std::string_view value_;
  int code_;
  std::uint32_t line_;
};

}  // namespace dxf
