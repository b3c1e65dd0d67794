#include <gtest/gtest.h>

#include "editor/rich_text/read_html.h"
#include "editor/rich_text/to_multitext.h"
#include "editor/rich_text/write_html.h"
#include "mtext/parse.h"
#include "mtext/serialize.h"
#include "od/base/unicode.h"
#include "tests/editor/rich_text/outline.h"

namespace {

/// The codes that a text of HTML becomes.
std::string codes(std::u16string_view html) {
  const mtext::format::string base;
  return odToUtf8(mtext::serialize(rich::to_multitext(rich::read_html(html), base), base, 2.5));
}

/// The HTML that codes become.
std::string html(const std::u16string& codes_of_text) {
  mtext::multitext text;
  mtext::parse(codes_of_text, {}, text, {});
  return odToUtf8(rich::write_html(text, 2.5));
}

}  // namespace

TEST(RichParts, become_codes_of_what_codes_can_hold) {
  EXPECT_EQ(codes(u"a <b>b</b>"), "a {\\f|b1|i0|c0|p0;b}");
  EXPECT_EQ(codes(u"<u>a</u>"), "{\\La}");
  EXPECT_EQ(codes(u"a<p>b<br>c"), "a\\Pb\nc");
  EXPECT_EQ(codes(u"<p>{\\x}"), "\\{\\\\x\\}");
  EXPECT_EQ(codes(u"<p>a&nbsp;b"), "a\\~b");
}

TEST(RichParts, have_sizes_as_ratios_of_the_usual_one) {
  EXPECT_EQ(codes(u"<p style='font-size:11pt'>long text<span style='font-size:22pt'>b</span></p>"),
            "long text{\\H2x;b}");
  EXPECT_EQ(codes(u"<p style='font-size:9pt'>a</p>"), "a");
}

TEST(RichParts, raised_and_lowered_characters_become_stacks) {
  EXPECT_EQ(codes(u"m<sup>2</sup>"), "m{\\H0.7x;\\S2^;}");
  EXPECT_EQ(codes(u"H<sub>2</sub>"), "H{\\H0.7x;\\S^2;}");
}

TEST(RichParts, the_black_of_paper_is_no_colour) {
  EXPECT_EQ(codes(u"<span style='color:#000'>a</span>"), "a");
  EXPECT_NE(codes(u"<span style='color:#f00'>a</span>"), "a");
}

TEST(RichParts, list_items_open_with_their_label_and_a_tab) {
  EXPECT_EQ(codes(u"<ol><li>a<li>b</ol>"), "1.\ta\\P2.\tb");
}

TEST(WriteHtml, writes_paragraphs_breaks_and_formats) {
  EXPECT_EQ(html(u"a {\\fArial|b1|i0;b}\\Pc\nd"),
            "<p>a <span style=\"font-weight:bold;\">b</span></p>\n<p>c<br>d</p>");
  EXPECT_EQ(
      html(u"{\\H2x;a}{\\Lb}"),
      "<p><span style=\"font-size:2em;\">a</span><span style=\"text-decoration:underline;\">b</span></p>");
  EXPECT_EQ(html(u"<&{\\H0.7x;\\S1/2;}"), "<p>&lt;&amp;<sup>1</sup>/<sub>2</sub></p>");
}

TEST(WriteHtml, is_read_back_as_it_was) {
  for (const std::u16string text : {u"a {\\fArial|b1|i0;b}\\Pc", u"{\\H2x;a} bcd", u"{\\c255;a}b"}) {
    mtext::multitext parsed;
    mtext::parse(text, {}, parsed, {});
    const rich::text read = rich::read_html(rich::write_html(parsed, 2.5));
    EXPECT_EQ(odToUtf8(mtext::serialize_raw(parsed, false)),
              odToUtf8(mtext::serialize_raw(rich::to_multitext(read, {}), false)));
  }
}
