#include "editor/rich_text/read_html.h"

#include <gtest/gtest.h>

#include "tests/editor/rich_text/outline.h"

namespace {

std::string read(std::u16string_view html) { return outline(rich::read_html(html)); }

}  // namespace

TEST(ReadHtml, takes_bold_italic_and_underline_from_elements_and_from_styles) {
  EXPECT_EQ(read(u"a<b>b<i>c</i></b><u>d</u><strong>e</strong><em>f</em>"), "ab[b]bi[c]u[d]b[e]i[f]");
  EXPECT_EQ(read(u"<span style=\"font-weight: 700; FONT-STYLE:italic\">a</span>"), "bi[a]");
  EXPECT_EQ(read(u"<b>a<span style='font-weight:normal'>b</span></b>"), "b[a]b");
  EXPECT_EQ(read(u"<span style='text-decoration: underline solid'>a</span>"), "u[a]");
}

TEST(ReadHtml, takes_colours_in_every_spelling) {
  EXPECT_EQ(read(u"<font color=\"#FF0000\">a</font>"), "#ff0000[a]");
  EXPECT_EQ(read(u"<span style='color:#0f8'>a</span>"), "#00ff88[a]");
  EXPECT_EQ(read(u"<span style='color: rgb(1, 20, 255)'>a</span>"), "#0114ff[a]");
  EXPECT_EQ(read(u"<span style='color: rgba(1 20 255 / 0.5)'>a</span>"), "#0114ff[a]");
  EXPECT_EQ(read(u"<span style='color:Navy'>a</span>"), "#000080[a]");
  EXPECT_EQ(read(u"<span style='color:nonsense'>a</span>"), "a");
}

TEST(ReadHtml, takes_sizes_in_points) {
  EXPECT_EQ(read(u"<p style='font-size:11pt'>a<span style='font-size:22pt'>b</span></p>"), "11[a]22[b]");
  EXPECT_EQ(read(u"<span style='font-size:16px'>a</span>"), "12[a]");
  EXPECT_EQ(read(u"<span style='font-size:2em'>a</span>"), "24[a]");
  EXPECT_EQ(read(u"<span style='font-size:10pt'><span style='font-size:150%'>a</span></span>"), "15[a]");
  EXPECT_EQ(read(u"<font size='5'>a</font>"), "18[a]");
  EXPECT_EQ(read(u"<h1>a</h1>"), "b24[a]");
  EXPECT_EQ(read(u"<span style='font-size:-3pt'>a</span><span style='font-size:1e300pt'>b</span>"), "ab");
}

TEST(ReadHtml, takes_paragraphs_and_line_breaks) {
  EXPECT_EQ(read(u"<p>a</p>\n<p>b<br>c</p>"), "a¶b\nc");
  EXPECT_EQ(read(u"<div><div>a</div></div><div>b</div>c"), "a¶b¶c");
  EXPECT_EQ(read(u"<table><tr><td>a</td><td>b</td></tr><tr><td>c</td></tr></table>"), "a\tb¶c");
}

TEST(ReadHtml, joins_blanks_as_a_browser_does) {
  EXPECT_EQ(read(u"  a  \n b <b> c</b> d <p>  e</p>"), "a b b[c] d¶e");
  EXPECT_EQ(read(u"<pre>a  b\nc</pre>"), "a  b\nc");
  EXPECT_EQ(read(u"<p>a&nbsp;&nbsp;b"), "a\u00A0\u00A0b");
}

TEST(ReadHtml, takes_lists_with_their_labels) {
  EXPECT_EQ(read(u"<ul><li>a</li><li>b</li></ul>"), "<•>a¶<•>b");
  EXPECT_EQ(read(u"<ol><li>a<ol><li>b</ol><li>c</ol>"), "<1.>a¶<1.1.>b¶<2.>c");
  EXPECT_EQ(read(u"x<ol><li><p>a</p></li></ol>y"), "x¶<1.>a¶y");
}

TEST(ReadHtml, takes_raised_and_lowered_characters) {
  EXPECT_EQ(read(u"m<sup>2</sup> H<sub>2</sub>O"), "m^[2] H_[2]O");
  EXPECT_EQ(read(u"m<span style='vertical-align:super'>2</span>"), "m^[2]");
}

TEST(ReadHtml, takes_characters_by_name_and_by_number) {
  EXPECT_EQ(read(u"<p>&lt;&amp;&gt;&eacute;&#8364;&#x2300;"), "<&>é€⌀");
  EXPECT_EQ(read(u"<p>Дом 用"), "Дом 用");
}

TEST(ReadHtml, leaves_out_what_is_not_shown_or_lies_elsewhere) {
  EXPECT_EQ(read(u"<head><title>t</title><style>p{}</style></head>a<script>x()</script><!-- c -->"
                 u"<img src='http://example.org/x.png' alt='i'><iframe src='http://example.org'>f</iframe>b"),
            "ab");
  EXPECT_EQ(
      read(u"<?xml version='1.0'?><!DOCTYPE html [<!ENTITY x SYSTEM 'file:///etc/passwd'>]><p>a&x;</p>"),
      "]>¶a&x;");
}

TEST(ReadHtml, takes_the_piece_of_a_clipboard_of_windows) {
  EXPECT_EQ(read(u"<html><body>\r\n<!--StartFragment-->a<b>b</b><!--EndFragment-->\r\n</body>\r\n</html>"),
            "ab[b]");
}

TEST(ReadHtml, of_nothing_or_of_garbage_gives_no_characters_or_those_that_are_there) {
  EXPECT_TRUE(rich::read_html(u"").empty());
  EXPECT_TRUE(rich::read_html(u"<p><b>").empty());
  EXPECT_TRUE(rich::read_html(std::u16string_view(u"\0<p>a", 5)).empty());
  EXPECT_EQ(read(u"</b></p>a<<b"), "a<");
}

TEST(ReadHtml, without_an_element_is_none) {
  for (const auto* garbage : {u"text", u"a < b", u"\xFF\xFE garbage \x80", u"<", u"<3"})
    EXPECT_TRUE(rich::read_html(garbage).empty());
}

TEST(ReadHtml, of_a_million_elements_in_each_other_ends_and_costs_no_stack) {
  std::u16string deep;
  for (int i = 0; i < 1'000'000; ++i) deep += u"<b>";
  rich::read_html(deep + u"a");
  for (int i = 0; i < 300'000; ++i) deep += u"</i>";
  rich::read_html(deep);
}

TEST(ReadHtml, that_is_too_long_is_not_read) {
  EXPECT_TRUE(rich::read_html(std::u16string(rich::kMostUnits + 1, u'a')).empty());
}
