#include <bit>
#include <cmath>

#include "od/base/OdError.h"
#include "od/dxf/little_endian.h"
#include "od/dxf/number_text.h"
#include "od/dxf/record.h"

namespace dxf {
namespace {

void require(bool fits, const Group& group, const char* what) {
  if (!fits)
    throw OdError(eInvalidInput, "The group " + std::to_string(group.code()) + " holds no " + what + ".");
}

}  // namespace

std::optional<double> Record::get_double(std::size_t index) const {
  const Group& group = groups_[index];
  if (manner_->form == Form::ascii) return parse_double(group.value());
  if (is_integer(group.type())) return static_cast<double>(read_signed_little_endian(group.value()));
  if (group.type() != ValueType::real) return std::nullopt;
  // As in a text drawing, what is infinite or no number is no value: nobody behind here expects one.
  const double value = std::bit_cast<double>(read_little_endian(group.value()));
  return std::isfinite(value) ? std::optional(value) : std::nullopt;
}

std::optional<std::int64_t> Record::get_int(std::size_t index) const {
  const Group& group = groups_[index];
  if (manner_->form == Form::ascii) return parse_int(group.value());
  if (group.type() == ValueType::boolean) return static_cast<std::int64_t>(read_little_endian(group.value()));
  if (!is_integer(group.type())) return std::nullopt;
  return read_signed_little_endian(group.value());
}

std::u16string Record::get_string(std::size_t index) const {
  const Group& group = groups_[index];
  if (manner_->form == Form::binary && !is_text(group.type())) return {};
  return manner_->codec.decode(group.value());
}

Handle Record::get_handle(std::size_t index) const {
  const Group& group = groups_[index];
  return is_text(group.type()) ? parse_handle(group.value()).value_or(0) : 0;
}

std::optional<std::string> Record::get_binary(std::size_t index) const {
  const Group& group = groups_[index];
  if (group.type() != ValueType::binary) return std::nullopt;
  return manner_->form == Form::ascii ? parse_hex(group.value()) : std::string(group.value());
}

double Record::double_or(int code, Range range, double fallback) const {
  const auto index = find(code, range);
  return index ? get_double(*index).value_or(fallback) : fallback;
}

std::int64_t Record::int_or(int code, Range range, std::int64_t fallback) const {
  const auto index = find(code, range);
  return index ? get_int(*index).value_or(fallback) : fallback;
}

std::u16string Record::string_or(int code, Range range, std::u16string_view fallback) const {
  const auto index = find(code, range);
  return index ? get_string(*index) : std::u16string(fallback);
}

Handle Record::handle_or(int code, Range range, Handle fallback) const {
  const auto index = find(code, range);
  return index ? get_handle(*index) : fallback;
}

// A number keeps the columns of the one it replaces, so that a file of mixed manners stays as it is.
int Record::width_at(std::size_t index) const {
  const Group& group = groups_[index];
  const int usual = manner_->width_of(group.type());
  const int here = static_cast<int>(group.value().size());
  if (group.value().starts_with(' ')) return here;
  return here < usual ? 0 : usual;
}

void Record::set_double(std::size_t index, double value) {
  require(groups_[index].type() == ValueType::real, groups_[index], "real");
  if (get_double(index) != value) replace(index, manner_->bytes_of_double(value));
}

void Record::set_int(std::size_t index, std::int64_t value) {
  const Group& group = groups_[index];
  if (group.type() == ValueType::real) return set_double(index, static_cast<double>(value));
  const std::string bytes = manner_->bytes_of_int(group.code(), value, width_at(index));
  if (get_int(index) == value) return;
  // A negative number may stand where its unsigned twin was given.
  if (manner_->form == Form::ascii && get_int(index) == parse_int(bytes)) return;
  replace(index, bytes);
}

void Record::set_string(std::size_t index, std::u16string_view value) {
  require(is_text(groups_[index].type()), groups_[index], "text");
  if (get_string(index) != value) replace(index, manner_->codec.encode(value));
}

void Record::set_handle_value(std::size_t index, Handle value) {
  require(is_text(groups_[index].type()), groups_[index], "handle");
  if (parse_handle(groups_[index].value()) != value) replace(index, format_handle(value));
}

void Record::set_binary(std::size_t index, std::string_view data) {
  require(groups_[index].type() == ValueType::binary, groups_[index], "binary data");
  if (get_binary(index) != data) replace(index, manner_->bytes_of_binary(data));
}

}  // namespace dxf
