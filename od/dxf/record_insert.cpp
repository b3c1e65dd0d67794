#include "od/base/OdError.h"
#include "od/dxf/number_text.h"
#include "od/dxf/record.h"

namespace dxf {
namespace {

void require(bool fits, int code, const char* what) {
  if (!fits) throw OdError(eInvalidInput, "The group " + std::to_string(code) + " holds no " + what + ".");
}

}  // namespace

void Record::insert_double(std::size_t index, int code, double value) {
  require(value_type(code) == ValueType::real, code, "real");
  insert(index, manner_->make(code, manner_->bytes_of_double(value)));
}

void Record::insert_int(std::size_t index, int code, std::int64_t value) {
  if (value_type(code) == ValueType::real) return insert_double(index, code, static_cast<double>(value));
  const int width = manner_->width_of(value_type(code));
  insert(index, manner_->make(code, manner_->bytes_of_int(code, value, width)));
}

void Record::insert_string(std::size_t index, int code, std::u16string_view value) {
  require(is_text(value_type(code)), code, "text");
  insert(index, manner_->make(code, manner_->codec.encode(value)));
}

void Record::insert_handle(std::size_t index, int code, Handle value) {
  require(is_text(value_type(code)), code, "handle");
  insert(index, manner_->make(code, format_handle(value)));
}

void Record::insert_binary(std::size_t index, int code, std::string_view data) {
  require(value_type(code) == ValueType::binary, code, "binary data");
  insert(index, manner_->make(code, manner_->bytes_of_binary(data)));
}

}  // namespace dxf
