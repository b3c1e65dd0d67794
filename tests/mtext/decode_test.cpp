#include "mtext/decode.h"

#include <gtest/gtest.h>

#include "tests/mtext/decoded.h"

namespace mtext {
namespace {

format::string base_of_height_10() {
  format::string base;
  base.height = 10;
  base.height_kind = 0;
  return base;
}

std::u16string there_and_back(const std::u16string& codes) {
  const geom_multitext text = decode(codes, base_of_height_10(), frame(), stub_finder(), {});
  return encode(text, base_of_height_10(), 10);
}

TEST(Decode, lays_the_text_out_in_the_given_frame) {
  const geom_multitext text = decoded(u"aa bb", frame(20));
  EXPECT_EQ(text.info.columns.width, 20);
  EXPECT_EQ(lines_of(text), (texts{"aa ", "bb"}));
}

TEST(Decode, shows_the_text_of_a_bound_field) {
  OdSmartPtr<OdDbField> date(new OdDbField(OdString(u"date"), OdString(u"now")), kOdRxObjAttach);
  date->setEvaluatedText(OdString(u"today"));
  const fields_map fields{{u"%<now>%", date}};
  EXPECT_EQ(drawn(decode(u"on %<now>%", {}, frame(), stub_finder(), fields)), "on today");
}

TEST(Encode, writes_what_was_read) {
  for (const char16_t* codes : {u"plain text", u"a\\Pb\\Nc", u"\\pxi1,l2;a{\\H2x;b}c", u"a\\~b",
                                u"on %<now>%", u"a\tb", u"{\\fArial|b1|i0|c0|p34;bold}rest"}) {
    EXPECT_EQ(there_and_back(codes), codes);
  }
}

TEST(Encode, writes_a_field_by_its_code_whatever_it_shows) {
  geom_multitext text = decode(u"%<now>%!", base_of_height_10(), frame(), stub_finder(), {});
  text.erase(0, 2, true);
  EXPECT_EQ(encode(text, base_of_height_10(), 10), u"%<now>%!");
}

}  // namespace
}  // namespace mtext
