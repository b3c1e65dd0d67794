#include "od/db/code_cursor.h"

#include <algorithm>

namespace {

bool isDigit(char16_t unit) { return unit >= u'0' && unit <= u'9'; }

}  // namespace

bool OdCodeCursor::accept(char16_t unit) {
  const bool found = !ended() && text[at] == unit;
  if (found) ++at;
  return found;
}

bool OdCodeCursor::skipUnsigned() {
  const std::size_t begin = at;
  while (!ended() && isDigit(text[at])) ++at;
  return at > begin;
}

bool OdCodeCursor::skipInteger() {
  const std::size_t begin = at;
  accept(u'-');
  if (skipUnsigned()) return true;
  at = begin;
  return false;
}

bool OdCodeCursor::skipNumber() {
  const std::size_t begin = at;
  const bool hasInteger = skipInteger();
  if (accept(u'.')) {
    if (!skipUnsigned()) {
      at = begin;
      return false;
    }
  } else if (!hasInteger) {
    return true;
  }
  if (accept(u'e') || accept(u'E')) skipInteger();
  return true;
}

bool OdCodeCursor::skipFactorOrValue() {
  if (!skipNumber()) return false;
  accept(u'x');
  accept(u';');
  return true;
}

bool OdCodeCursor::skipCount() {
  if (!skipUnsigned()) return false;
  accept(u';');
  return true;
}

bool OdCodeCursor::skipFont() {
  const std::size_t end = std::min(text.find_first_of(u"|;", at), text.size());
  if (end == at) return false;
  at = std::min(text.find(u';', end), text.size());
  return true;
}

std::size_t OdCodeCursor::skipParagraphItems() {
  constexpr std::u16string_view kLengths = u"ilrba", kSpacings = u"aem";
  while (!ended() && text[at] != u';') {
    const std::size_t begin = at;
    const char16_t letter = text[at++];
    if (letter == u't') {
      if (const std::size_t cut = skipTabs(); cut < text.size()) return cut;
    } else if (letter == u'q' || letter == u's') {
      if (ended()) return begin;
      const char16_t kind = text[at++];
      if (letter == u's' && kSpacings.find(kind) != kSpacings.npos) skipNumber();
    } else if (kLengths.find(letter) != kLengths.npos) {
      skipNumber();
    }
  }
  return text.size();
}

std::size_t OdCodeCursor::skipTabs() {
  do {
    if (accept(u'z')) continue;
    const std::size_t begin = at;
    if (accept(u'D')) {
      if (ended()) return text[begin - 1] == u',' ? begin - 1 : begin;
      ++at;
    } else if (!accept(u'c')) {
      accept(u'r');
    }
    if (!skipNumber()) {
      at = begin;
      break;
    }
  } while (accept(u','));
  return text.size();
}
