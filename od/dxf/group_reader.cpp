#include "od/dxf/group_reader.h"

#include "od/dxf/ascii_reader.h"
#include "od/dxf/binary_reader.h"

namespace dxf {

std::unique_ptr<GroupReader> open_reader(std::string_view bytes, const std::string& name, Manner& manner) {
  if (is_binary_drawing(bytes)) return std::make_unique<BinaryReader>(bytes, name, manner);
  return std::make_unique<AsciiReader>(bytes, name, manner);
}

}  // namespace dxf
