// Reads any string as format codes. The first byte chooses the base format, the rest is the string.

#include <algorithm>
#include <cmath>

#include "fuzz/require.h"
#include "fuzz/text_input.h"
#include "mtext/escape.h"
#include "mtext/parse.h"
#include "mtext/serialize.h"
#include "od/base/unicode.h"

namespace {

using namespace mtext;
using fuzz::require;

/// Whether the reader may have made this number of a finite one; what is no number is in order nowhere.
void expect_in_order(const format::string& each) {
  require(each.height_kind <= 1, "a height is absolute or a factor");
  require(each.align <= 2, "a vertical alignment is one of three");
  require(each.flags <= 15, "a format has four flags");
  require(each.color.kind <= 1, "a colour is an index or a true colour");
}

void expect_in_order(const format::paragraph& each) {
  require(!(each.left < 0), "no paragraph begins left of the frame");
  require(!(each.left + each.indent < 0), "no first line begins left of the frame");
  require(each.alignment <= 5, "a paragraph has one of six alignments");
  require(each.spacing.style <= 3, "a paragraph has one of four spacings");
  for (const format::tab_stop& stop : each.tabs) {
    require(stop.kind <= 3, "a tab stop is of one of four kinds");
    require(stop.kind == 3 || stop.decimal_char == u' ', "only decimal stops have a separator");
  }
}

void expect_in_order(const part& each) {
  expect_in_order(each.format);
  if (each.type() == part_string)
    require(!static_cast<const mtext::string&>(each).text.empty(), "a word has a character");
  if (each.type() == part_spaces)
    require(static_cast<const spaces&>(each).count > 0, "a run of blanks has one");
  if (each.type() == part_stack)
    require(static_cast<const mtext::stack&>(each).kind <= 2, "a stack is one of three");
  if (each.type() == part_new_paragraph) expect_in_order(static_cast<const new_paragraph&>(each).paragraph);
}

bool can_be_joined(const part& a, const part& b) {
  return a.type() == b.type() && (a.type() == part_string || a.type() == part_spaces) && a.format == b.format;
}

void expect_in_order(const multitext& text) {
  expect_in_order(text.paragraph);
  for (const part& each : text.parts) expect_in_order(each);
}

std::size_t blanks_of(const multitext& text) {
  std::size_t count = 0;
  for (const part& each : text.parts) {
    if (each.type() == part_spaces) count += static_cast<const spaces&>(each).count;
  }
  return count;
}

/// The characters of all words, one after the other.
std::u16string words_of(const multitext& text) {
  std::u16string words;
  for (const part& each : text.parts) {
    if (each.type() == part_string) words += static_cast<const mtext::string&>(each).text;
  }
  return words;
}

void join(const std::u16string& codes, const format::string& base) {
  multitext apart, joined;
  const auto end = std::find(codes.begin(), codes.end(), u'\0') - codes.begin();
  require(parse(codes.data(), codes.data() + end, base, apart, {}), "reading never fails");
  require(parse(codes, base, joined, {}), "reading never fails");
  require(words_of(apart) == words_of(joined), "joining keeps the words");
  require(blanks_of(apart) == blanks_of(joined), "joining keeps the number of blanks");
  for (std::size_t i = 1; i < joined.parts.size(); ++i)
    require(!can_be_joined(joined.parts[i - 1], joined.parts[i]), "joined neighbours differ");
}

/// What can be escaped without loss: no symbols or fields, which nothing protects, single blanks, and no
/// carriage returns, which are dropped.
std::u16string plain_of(const std::u16string& text) {
  std::u16string plain;
  for (char16_t unit : text) {
    const bool second_blank = unit == u' ' && plain.ends_with(u' ');
    if (unit == u'\0' || unit == u'\r' || unit == u'%' || second_blank) continue;
    plain += unit;
  }
  return plain;
}

std::u16string with_carriage_returns(const std::u16string& plain) {
  std::u16string text;
  for (char16_t unit : plain) text += unit == u'\n' ? u"\r\n" : std::u16string(1, unit);
  return text;
}

void escape_and_back(const std::u16string& text) {
  const std::u16string plain = plain_of(text);
  require(unformat_mtext(escape_mtext(plain.c_str(), /*keep_line_feeds=*/true).c_str()) ==
              with_carriage_returns(plain),
          "escaped plain text reads as itself");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::byte_source input(data, size);
  const format::string base = fuzz::base_format(input);
  const std::u16string codes = odToUtf16(input.rest());
  multitext text;
  require(parse(codes, base, text, fuzz::bound_fields()), "reading never fails");
  expect_in_order(text);
  join(codes, base);
  require(unformat_mtext(codes.c_str()).empty() == text.parts.empty(), "what has parts has plain text");
  multitext again;
  require(parse(serialize(text, base, 2.5), base, again, {}), "what was written can be read");
  escape_and_back(codes);
  return 0;
}
