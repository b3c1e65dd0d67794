#include "od/evaluate/format_value.h"

#include "od/evaluate/format_date.h"
#include "od/evaluate/format_number.h"
#include "od/evaluate/format_options.h"
#include "od/evaluate/format_text.h"
#include "od/field/OdDbField.h"

namespace {

constexpr std::u16string_view kIsoDate = u"yyyy-MM-dd";

/// Writes a value of any kind.
struct Writer {
  std::u16string_view format;
  const OdFieldUnits& units;

  std::u16string operator()(std::monostate) const { return {}; }
  std::u16string operator()(std::int32_t value) const {
    const bool isBytes = odFormatOption(format, u"by").has_value();
    if (isBytes) return bytes(value);
    return format.empty() ? odFormatInteger(value) : odFormatLength(value, format, units);
  }
  std::u16string operator()(double value) const { return odFormatLength(value, format, units); }
  std::u16string operator()(const OdString& text) const { return odFormatText(text.str(), format); }
  std::u16string operator()(const OdFieldDate& date) const {
    return odFormatDate(date, format.empty() ? kIsoDate : format);
  }
  std::u16string operator()(const OdFieldAngle& angle) const {
    return odFormatAngle(angle.radians, format, units);
  }
  std::u16string operator()(const OdFieldPoint& point) const {
    constexpr int kAll = 7;
    const int shown = odFormatNumber(format, u"pt", kAll);
    std::u16string text;
    const double coordinates[] = {point.x, point.y, point.z};
    for (int i = 0; i < 3; ++i) {
      if (!(shown & 1 << i)) continue;
      if (!text.empty()) text += u',';
      text += odFormatLength(coordinates[i], format, units);
    }
    return text;
  }

 private:
  /// 1 bytes, 2 kilobytes, 3 megabytes.
  std::u16string bytes(double value) const {
    constexpr double kKilo = 1024;
    const int unit = odFormatNumber(format, u"by", 1);
    if (unit == 2) value /= kKilo;
    if (unit == 3) value /= kKilo * kKilo;
    return odFormatFixed(value, unit == 1 ? 0 : odFormatNumber(format, u"pr", 0) % 9);
  }
};

}  // namespace

OdString odFormatFieldValue(const OdFieldValue& value, std::u16string_view format,
                            const OdFieldUnits& units) {
  const OdString text(std::visit(Writer{format, units}, value));
  return text.isEmpty() ? OdString(OdDbField::kNothingShown) : text;
}
