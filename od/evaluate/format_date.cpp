#include "od/evaluate/format_date.h"

#include <algorithm>
#include <array>

#include "od/evaluate/format_number.h"

namespace {

constexpr std::array<std::u16string_view, 7> kDays{u"Sunday",   u"Monday", u"Tuesday", u"Wednesday",
                                                   u"Thursday", u"Friday", u"Saturday"};
constexpr std::array<std::u16string_view, 12> kMonths{u"January",   u"February", u"March",    u"April",
                                                      u"May",       u"June",     u"July",     u"August",
                                                      u"September", u"October",  u"November", u"December"};
constexpr std::size_t kShortName = 3;

template <std::size_t Count>
std::u16string_view nameOf(const std::array<std::u16string_view, Count>& names, int index,
                           std::size_t letters) {
  if (index < 0 || index >= static_cast<int>(Count)) return {};
  const std::u16string_view name = names[static_cast<std::size_t>(index)];
  return letters > kShortName ? name : name.substr(0, kShortName);
}

std::u16string padded(int number, std::size_t digits) {
  std::u16string text = odFormatInteger(number);
  if (text.size() < digits) text.insert(0, digits - text.size(), u'0');
  return text;
}

int twelveHours(int hour) { return hour % 12 == 0 ? 12 : hour % 12; }

/// What `count` times the same letter stands for; the letters themselves where they stand for nothing.
std::u16string valueOf(const OdFieldDate& date, char16_t letter, std::size_t count) {
  const std::size_t digits = std::min<std::size_t>(count, 2);
  const std::u16string_view half = date.hour < 12 ? u"AM" : u"PM";
  switch (letter) {
    case u'd':
      return count > 2 ? std::u16string(nameOf(kDays, date.weekday, count)) : padded(date.day, digits);
    case u'M':
      return count > 2 ? std::u16string(nameOf(kMonths, date.month - 1, count)) : padded(date.month, digits);
    case u'y':
      return count > 2 ? padded(date.year, 4) : padded(date.year % 100, digits);
    case u'h':
      return padded(twelveHours(date.hour), digits);
    case u'H':
      return padded(date.hour, digits);
    case u'm':
      return padded(date.minute, digits);
    case u's':
      return padded(date.second, digits);
    case u't':
      return std::u16string(half.substr(0, digits));
    default:
      return std::u16string(count, letter);
  }
}

/// The letters that `%c` and its like stand for, and how many characters of the format they take; no
/// characters for anything else.
struct Whole {
  std::u16string_view letters;
  std::size_t length = 0;
};

Whole wholeForm(std::u16string_view format) {
  constexpr struct {
    std::u16string_view sign, letters;
  } kForms[] = {
      {u"%#c", u"dddd, MMMM dd, yyyy HH:mm:ss"}, {u"%#x", u"dddd, MMMM dd, yyyy"}, {u"%#X", u"HH:mm:ss"},
      {u"%c", u"yyyy-MM-dd HH:mm:ss"},           {u"%x", u"yyyy-MM-dd"},           {u"%X", u"HH:mm:ss"}};
  for (const auto& form : kForms)
    if (format.starts_with(form.sign)) return {form.letters, form.sign.size()};
  return {};
}

std::u16string byLetters(const OdFieldDate& date, std::u16string_view format) {
  std::u16string text;
  while (!format.empty()) {
    const char16_t letter = format.front();
    const std::size_t quote = letter == u'\'' ? format.find(u'\'', 1) : format.npos;
    if (quote != format.npos) {
      text += format.substr(1, quote - 1);
      format.remove_prefix(quote + 1);
      continue;
    }
    const std::size_t count = std::min(format.size(), format.find_first_not_of(letter));
    text += valueOf(date, letter, count);
    format.remove_prefix(count);
  }
  return text;
}

}  // namespace

std::u16string odFormatDate(const OdFieldDate& date, std::u16string_view format) {
  std::u16string text;
  while (!format.empty()) {
    if (const Whole whole = wholeForm(format); whole.length > 0) {
      text += byLetters(date, whole.letters);
      format.remove_prefix(whole.length);
      continue;
    }
    // A sign that begins no form stands for itself.
    const std::size_t behind = std::min(format.size(), format.find(u'%', 1));
    text += byLetters(date, format.substr(0, behind));
    format.remove_prefix(behind);
  }
  return text;
}
