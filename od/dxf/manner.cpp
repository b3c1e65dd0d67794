#include "od/dxf/manner.h"

#include <bit>
#include <cmath>

#include "od/base/OdError.h"
#include "od/dxf/little_endian.h"
#include "od/dxf/number_text.h"

namespace dxf {
namespace {

constexpr std::size_t kLongestChunk = 255;

std::string right_aligned(std::string text, int width) {
  if (text.size() < static_cast<std::size_t>(width))
    text.insert(0, static_cast<std::size_t>(width) - text.size(), ' ');
  return text;
}

int bytes_of(ValueType type) {
  switch (type) {
    case ValueType::int16:
      return 2;
    case ValueType::int32:
      return 4;
    case ValueType::int64:
      return 8;
    default:
      return 1;
  }
}

[[noreturn]] void refuse(int code, const std::string& reason) {
  throw OdError(eInvalidInput, "The group " + std::to_string(code) + " cannot hold " + reason + ".");
}

// Callers may give an unsigned number of the same width, such as a colour with its highest bit set.
std::int64_t in_range(int code, std::int64_t value, int bytes) {
  if (bytes == 8) return value;
  const std::int64_t half = std::int64_t{1} << (8 * bytes - 1);
  if (value < -half || value >= 2 * half) refuse(code, std::to_string(value));
  return value < half || value_type(code) == ValueType::boolean ? value : value - 2 * half;
}

std::string binary_code(const Manner& manner, int code) {
  std::string bytes;
  if (manner.one_byte_codes && code < 255) {
    bytes += static_cast<char>(code);
    return bytes;
  }
  if (manner.one_byte_codes) bytes += '\xFF';
  append_little_endian(static_cast<std::uint64_t>(code), 2, bytes);
  return bytes;
}

Group make_binary(const Manner& manner, int code, std::string_view value, std::uint32_t line) {
  std::string bytes = binary_code(manner, code);
  const ValueType type = value_type(code);
  if (type == ValueType::unknown) refuse(code, "anything in a binary drawing, its length is not known");
  if (type == ValueType::binary) {
    if (value.size() > kLongestChunk) refuse(code, "more than 255 bytes");
    bytes += static_cast<char>(value.size());
  }
  const std::size_t begin = bytes.size();
  bytes += value;
  if (is_text(type)) bytes += '\0';
  return Group::owning(code, std::move(bytes), begin, value.size(), line);
}

}  // namespace

int Manner::width_of(ValueType type) const {
  switch (type) {
    case ValueType::int16:
      return int16_width;
    case ValueType::int32:
      return int32_width;
    case ValueType::int64:
      return int64_width;
    case ValueType::boolean:
      return boolean_width;
    default:
      return 0;
  }
}

Group Manner::make(int code, std::string_view value) const {
  if (form == Form::binary) return make_binary(*this, code, value, 0);
  std::string bytes = right_aligned(std::to_string(code), code_width) + line_end;
  const std::size_t begin = bytes.size();
  bytes += value;
  bytes += line_end;
  return Group::owning(code, std::move(bytes), begin, value.size());
}

Group Manner::with_value(const Group& old, std::string_view value) const {
  if (form == Form::binary) return make_binary(*this, old.code(), value, old.line());
  const std::string_view all = old.bytes();
  const auto begin = static_cast<std::size_t>(old.value().data() - all.data());
  std::string bytes(all.substr(0, begin));
  bytes += value;
  bytes += all.substr(begin + old.value().size());
  return Group::owning(old.code(), std::move(bytes), begin, value.size(), old.line());
}

std::string Manner::bytes_of_double(double value) const {
  if (!std::isfinite(value))
    throw OdError(eInvalidInput, "A drawing cannot hold a number that is not finite.");
  if (form == Form::ascii) return format_double(value);
  std::string bytes;
  append_little_endian(std::bit_cast<std::uint64_t>(value), 8, bytes);
  return bytes;
}

std::string Manner::bytes_of_int(int code, std::int64_t value, int width) const {
  const ValueType type = value_type(code);
  if (!is_integer(type) && type != ValueType::unknown) refuse(code, "an integer");
  const int size = bytes_of(type);
  const std::int64_t number = type == ValueType::unknown ? value : in_range(code, value, size);
  if (form == Form::ascii) return right_aligned(std::to_string(number), width);
  std::string bytes;
  append_little_endian(static_cast<std::uint64_t>(number), size, bytes);
  return bytes;
}

std::string Manner::bytes_of_binary(std::string_view data) const {
  return form == Form::ascii ? format_hex(data) : std::string(data);
}

}  // namespace dxf
