#include "od/dxf/binary_reader.h"

#include "od/dxf/error.h"
#include "od/dxf/little_endian.h"

namespace dxf {
namespace {

constexpr std::string_view kSignature = "AutoCAD Binary DXF";
constexpr std::string_view kHead("AutoCAD Binary DXF\r\n\x1A\0", 22);
constexpr std::string_view kLongCode = "\xFF";

}  // namespace

bool is_binary_drawing(std::string_view bytes) { return bytes.starts_with(kSignature); }

BinaryReader::BinaryReader(std::string_view bytes, const std::string& name, Manner& manner)
    : GroupReader(bytes, name), cursor_(kHead.size()) {
  if (!bytes_.starts_with(kHead))
    throw Error::at_offset(name_, kSignature.size(), "the head of the binary drawing is damaged");
  head_size_ = position_ = kHead.size();
  // The first group is 0:SECTION. Its code takes one byte where a letter follows it, else two.
  one_byte_codes_ = bytes_.size() > cursor_ + 1 && bytes_[cursor_ + 1] != '\0';
  manner.form = Form::binary;
  manner.one_byte_codes = one_byte_codes_;
}

std::string_view BinaryReader::take(std::size_t size) {
  if (size > bytes_.size() - cursor_)
    throw Error::at_offset(name_, position_, "the drawing ends in the middle of a group");
  const std::string_view taken = bytes_.substr(cursor_, size);
  cursor_ += size;
  return taken;
}

int BinaryReader::take_code() {
  if (!one_byte_codes_) return static_cast<int>(read_signed_little_endian(take(2)));
  const std::string_view code = take(1);
  return static_cast<int>(read_little_endian(code == kLongCode ? take(2) : code));
}

std::string_view BinaryReader::take_value(int code) {
  switch (value_type(code)) {
    case ValueType::real:
    case ValueType::int64:
      return take(8);
    case ValueType::int32:
      return take(4);
    case ValueType::int16:
      return take(2);
    case ValueType::boolean:
      return take(1);
    case ValueType::binary:
      return take(read_little_endian(take(1)));
    case ValueType::string:
    case ValueType::handle:
      break;
    case ValueType::unknown:
      throw Error::at_offset(name_, position_,
                             "the length of a group " + std::to_string(code) + " is not known");
  }
  const std::size_t zero = bytes_.find('\0', cursor_);
  const std::string_view text = take((zero == std::string_view::npos ? bytes_.size() + 1 : zero) - cursor_);
  take(1);
  return text;
}

std::optional<Group> BinaryReader::next() {
  if (cursor_ == bytes_.size()) return std::nullopt;
  const int code = take_code();
  const std::string_view value = take_value(code);
  Group group(code, bytes_.substr(position_, cursor_ - position_), value, 0);
  position_ = cursor_;
  return group;
}

}  // namespace dxf
