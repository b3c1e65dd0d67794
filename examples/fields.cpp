#include <iostream>

#include "fixed_pitch_finder.h"
#include "mtext/decode.h"
#include "mtext/serialize.h"
#include "od/base/unicode.h"

int main() {
  const OdDbFieldPtr scale = odNew<OdDbField>(u"Sheet", u"Sheet.Scale");
  scale->setEvaluatedText(u"1:50");
  const mtext::fields_map fields{{u"%<Sheet.Scale>%", scale}};

  mtext::geom_multitext text =
      mtext::decode(u"Scale %<Sheet.Scale>%, sheet %<Sheet.Number>%", {}, {}, fixed_pitch_finder(), fields);
  std::u16string shown;
  for (const mtext::geom_part& part : text.parts)
    mtext::serialize_raw(shown, part.part(), /*tilde_spaces=*/false);
  std::cout << odToUtf8(shown) << '\n';

  for (const mtext::marks::mark& mark : text.marks)
    if (const auto* field = dynamic_cast<const mtext::marks::field*>(&mark))
      std::cout << field->begin << " to " << field->end << " is " << odToUtf8(field->code) << '\n';

  mtext::format::string base;
  base.height = text.info.height;
  base.height_kind = 0;
  std::cout << odToUtf8(mtext::encode(text, base, base.height)) << '\n';
}
