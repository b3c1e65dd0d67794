#include "od/dxf/settle_manner.h"

#include "od/base/whole_number.h"
#include "od/dxf/number_text.h"

namespace dxf {
namespace {

// The value behind `9:name`, empty where the drawing does not say. Read as bytes: the codec is not known yet.
std::string_view header_value(const RecordList& records, std::string_view name) {
  for (const Record& record : records) {
    if (!record.is("SECTION")) continue;
    for (std::size_t i = 0; i + 1 < record.size(); ++i) {
      if (record[i].code() == 9 && trim(record[i].value()) == name) return trim(record[i + 1].value());
    }
  }
  return {};
}

// "AC1015" is 1015; the oldest drawings say "AC2.10" or nothing.
Version version_of(std::string_view name) {
  if (!name.starts_with("AC")) return R12;
  const int number = odWholeNumber<int>(name.substr(2)).value_or(R12);
  return number > R12 && number < 10000 ? static_cast<Version>(number) : R12;
}

// Columns of a right aligned text, or 0 where no blank shows any.
int width_shown(std::string_view text) { return text.starts_with(' ') ? static_cast<int>(text.size()) : 0; }

std::string_view code_line(const Group& group) {
  return group.bytes().substr(0, group.bytes().find_first_of("\r\n"));
}

// The first right aligned integer of each type shows its columns; most drawings have them in the header.
void settle_widths(const RecordList& records, Manner& manner) {
  constexpr std::size_t kEnough = 100000;
  std::size_t seen = 0;
  const auto settle = [](int& width, const Group& group) {
    if (width == 0) width = width_shown(group.value());
  };
  for (const Record& record : records) {
    for (const Group& group : record) {
      if (group.type() == ValueType::int16) settle(manner.int16_width, group);
      if (group.type() == ValueType::int32) settle(manner.int32_width, group);
      if (group.type() == ValueType::int64) settle(manner.int64_width, group);
      if (group.type() == ValueType::boolean) settle(manner.boolean_width, group);
    }
    seen += record.size();
    if (seen > kEnough) return;
  }
}

void settle_code_width(const RecordList& records, Manner& manner) {
  for (const Record& record : records) {
    if (record.type().empty()) continue;
    manner.code_width = width_shown(code_line(record[0]));
    return;
  }
}

}  // namespace

void settle_manner(const RecordList& records, Manner& manner) {
  manner.version = version_of(header_value(records, "$ACADVER"));
  const std::string_view page = header_value(records, "$DWGCODEPAGE");
  manner.codec =
      manner.version >= R2007 ? TextCodec::utf8(manner.form) : TextCodec::code_page(page, manner.form);
  if (manner.form == Form::binary) return;
  settle_code_width(records, manner);
  settle_widths(records, manner);
}

}  // namespace dxf
