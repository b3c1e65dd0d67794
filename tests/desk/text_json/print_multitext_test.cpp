#include <gtest/gtest.h>

#include <sstream>

#include "desk/text_json/multitext_json.h"
#include "mtext/parse.h"

namespace {

mtext::multitext parsed(const std::u16string& codes) {
  mtext::multitext text;
  mtext::parse(codes, mtext::format::string(), text, {});
  return text;
}

std::string printed(const mtext::multitext& text) {
  std::ostringstream out;
  text_json::print_multitext(out, text);
  return out.str();
}

}  // namespace

TEST(PrintMultitext, prints_what_write_multitext_makes) {
  for (const std::u16string codes : {u"", u"oak", u"\\pxi1,t2;a  b\tc\nd\\S1/2;\\P{\\fArial|b1;e}\\N%<code>%",
                                     u"{\\C1;a}{\\C2;a}{\\H2x;a}{\\c5;a}\\~\u00df"}) {
    const mtext::multitext text = parsed(codes);
    EXPECT_EQ(text_json::json::parse(printed(text)), text_json::write_multitext(text));
  }
}

TEST(PrintMultitext, heights_that_nearly_agree_keep_their_digits) {
  const auto parts = text_json::json::parse(printed(parsed(u"a {\\H1.00001x;b}")))["parts"];
  EXPECT_EQ(parts[0]["format"]["height"], 1.0);
  EXPECT_EQ(parts[2]["format"]["height"], 1.00001);
}
