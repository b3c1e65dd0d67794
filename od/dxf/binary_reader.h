#pragma once

#include "od/dxf/group_reader.h"

namespace dxf {

/// True for bytes that begin as a binary drawing does.
bool is_binary_drawing(std::string_view bytes);

/// Reads the binary form: a code of one or two bytes, then a value whose length follows from the code.
class BinaryReader : public GroupReader {
 public:
  BinaryReader(std::string_view bytes, const std::string& name, Manner& manner);

  std::optional<Group> next() override;

 private:
  std::string_view take(std::size_t size);
  std::string_view take_value(int code);
  int take_code();

  bool one_byte_codes_ = false;
  std::size_t cursor_ = 0;
};

}  // namespace dxf
