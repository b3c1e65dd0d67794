#include "fuzz/text_input.h"

namespace fuzz {
namespace {

OdDbFieldPtr evaluated(const char16_t* code, const char16_t* value) {
  OdDbFieldPtr made = odNew<OdDbField>(u"AcVar", code);
  made->setEvaluatedText(value);
  return made;
}

}  // namespace

mtext::format::string base_format(byte_source& input) {
  mtext::format::string base;
  if (input.flag()) {
    base.font = u"Arial";
    base.pitch = 34;
    base.color = {.kind = 0, .index = 256};
    base.width_factor = 0.75;
  }
  return base;
}

mtext::convert_info frame(byte_source& input) {
  static constexpr double widths[] = {0, 40, 1, 10, 100, 1000, -10, 1e-300, 1e300};
  static constexpr double heights[] = {0, 15, 30, 100, -5, 1e-300, 1e300};
  mtext::convert_info made;
  made.height = input.flag() ? 10 : 2.5;
  made.columns.width = input.one_of(widths);
  made.columns.kind = static_cast<std::uint32_t>(input.up_to(2));
  made.columns.gutter = 7;
  const std::uint8_t limits = input.byte();
  made.columns.heights = {heights[limits % 7], heights[limits / 7 % 7], heights[limits / 49]};
  if (made.columns.kind == 0) made.columns.heights.resize(1 + limits % 3);
  made.alignment = static_cast<std::uint32_t>(1 + input.up_to(4));
  const std::uint8_t rest = input.byte();
  made.vertical = rest % 3;
  made.extents_mode = rest / 3 % 3;
  made.spacing = {rest / 9 % 4u, 1.0 + rest / 36 * 0.25};
  return made;
}

mtext::fields_map bound_fields() {
  return {{u"%<room>%", evaluated(u"room", u"Room 12")}, {u"%<none>%", evaluated(u"none", u"")}};
}

}  // namespace fuzz
