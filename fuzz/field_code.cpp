// Reads any bytes as the code of a field and evaluates it.

#include <string>

#include "fuzz/require.h"
#include "od/base/unicode.h"
#include "od/evaluate/evaluate_field.h"

namespace {

using fuzz::require;

/// Something of every kind under one-letter names.
class source_of_all : public OdFieldSource {
 public:
  std::optional<OdFieldValue> variable(std::u16string_view name) const override { return value(name); }
  std::optional<OdFieldValue> property(std::uint64_t, std::u16string_view name) const override {
    return value(name);
  }
  OdFieldUnits units() const override {
    return {.length = 4, .length_precision = 8, .angle = 1, .angle_precision = 2};
  }

 private:
  static std::optional<OdFieldValue> value(std::u16string_view name) {
    if (name == u"d") return OdFieldDate{2020, 4, 2, 21, 16, 45, 39, 0};
    if (name == u"r") return 1234.5678;
    if (name == u"i") return std::int32_t{-7};
    if (name == u"p") return OdFieldPoint{1, 2, 3};
    if (name == u"a") return OdFieldAngle{4};
    if (name == u"t") return OdString(u"/a/b.c \u00e9");
    return {};
  }
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::u16string code = odToUtf16({reinterpret_cast<const char*>(data), size});
  const OdDbFieldPtr field = OdDbField::createFromCode(code);
  odEvaluateField(field, OdDbField::kAutomatic, source_of_all());
  require(!field->getFieldCode(OdDbField::kEvaluatedText).isEmpty(), "a field shows something");
  require(field->getFieldCode(OdDbField::kAddMarkers) == OdString(u"%<" + code + u">%"),
          "an evaluated field keeps its code");
  return 0;
}
