#include "desk/script/script_verb.h"

#include <array>
#include <cmath>
#include <optional>
#include <stdexcept>

#include "host/prompt_text.h"
#include "od/base/unicode.h"
#include "od/base/whole_number.h"

namespace {

using Step = decltype(ScriptStep::what);

constexpr int kLongestWait = 3600 * 1000;

[[noreturn]] void refuse(const std::string& reason) { throw std::invalid_argument(reason); }

std::optional<double> readNumber(std::u16string_view text) {
  const auto value = odWholeNumber<double>(odToUtf8(host::without_outer_blanks(text)));
  return value && std::isfinite(*value) ? value : std::nullopt;
}

MouseStep readMouse(MouseAction action, std::u16string_view argument) {
  std::u16string_view point = host::without_outer_blanks(argument);
  MouseStep step{.action = action, .held = takeHeldKeys(point)};
  const std::size_t comma = point.find(u',');
  const std::optional<double> x = readNumber(point.substr(0, comma));
  const std::optional<double> y =
      comma == std::u16string_view::npos ? std::nullopt : readNumber(point.substr(comma + 1));
  if (!x || !y)
    refuse("\"" + odToUtf8(host::without_outer_blanks(argument)) + "\" is not a point such as 10,20.");
  step.x = *x;
  step.y = *y;
  return step;
}

Step readKey(std::u16string_view argument) {
  const std::optional<KeyChord> chord = parseKeyChord(host::without_outer_blanks(argument));
  if (!chord) refuse("\"" + odToUtf8(host::without_outer_blanks(argument)) + "\" names no key.");
  return PressKey{*chord};
}

Step readWait(std::u16string_view argument) {
  const std::optional<double> time = readNumber(argument);
  if (!time || *time < 0 || *time > kLongestWait || *time != std::floor(*time))
    refuse("\"" + odToUtf8(host::without_outer_blanks(argument)) + "\" is not a time in whole milliseconds.");
  return WaitStep{static_cast<int>(*time)};
}

Step readAnswer(std::u16string_view argument) {
  const std::u16string_view word = host::without_outer_blanks(argument);
  if (odEqualNoCase(word, u"yes")) return AnswerStep{ScriptAnswer::yes};
  if (odEqualNoCase(word, u"no")) return AnswerStep{ScriptAnswer::no};
  if (odEqualNoCase(word, u"cancel")) return AnswerStep{ScriptAnswer::cancel};
  refuse("\"" + odToUtf8(word) + "\" is not an answer; yes, no and cancel are.");
}

Step readMenu(std::u16string_view argument) {
  const std::u16string_view entry = host::without_outer_blanks(argument);
  if (entry.empty()) refuse("\"@menu\" names no entry of a menu.");
  return MenuStep{std::u16string(entry)};
}

Step readField(std::u16string_view argument) {
  return FieldStep{std::u16string(host::without_outer_blanks(argument))};
}

Step readType(std::u16string_view argument) { return TypeCharacters{std::u16string(argument)}; }

struct Verb {
  std::u16string_view name;
  Step (*read)(std::u16string_view argument);
};

constexpr std::array<Verb, 12> kVerbs{{
    {u"click", [](std::u16string_view point) -> Step { return readMouse(MouseAction::click, point); }},
    {u"double", [](std::u16string_view point) -> Step { return readMouse(MouseAction::twice, point); }},
    {u"press", [](std::u16string_view point) -> Step { return readMouse(MouseAction::press, point); }},
    {u"drag", [](std::u16string_view point) -> Step { return readMouse(MouseAction::drag, point); }},
    {u"release", [](std::u16string_view point) -> Step { return readMouse(MouseAction::release, point); }},
    {u"right", [](std::u16string_view point) -> Step { return readMouse(MouseAction::right, point); }},
    {u"type", readType},
    {u"key", readKey},
    {u"wait", readWait},
    {u"answer", readAnswer},
    {u"menu", readMenu},
    {u"field", readField},
}};

}  // namespace

Step readVerb(std::u16string_view text) {
  const std::size_t space = text.find_first_of(u" \t");
  const std::u16string_view name = text.substr(0, space);
  const std::u16string_view argument =
      space == std::u16string_view::npos ? std::u16string_view() : text.substr(space + 1);
  for (const Verb& verb : kVerbs)
    if (odEqualNoCase(verb.name, name)) return verb.read(argument);
  refuse("\"@" + odToUtf8(name) + "\" is no step of a script.");
}
