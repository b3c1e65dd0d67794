#include "tests/editor/edited_text.h"

#include <map>
#include <sstream>

#include "editor/part_kinds.h"
#include "host/key_code.h"
#include "od/base/unicode.h"
#include "od/db/OdDbDatabase.h"
#include "tests/editor/flat_view.h"
#include "tests/mtext/stub_finder.h"
#include "ui/resources/menus.h"
#include "ui/resources/strings.h"

namespace {

struct drawing {
  std::u16string codes;
  std::vector<mtext::marks::selection> selections;
};

std::u16string code_of(char16_t sign) {
  switch (sign) {
    case u'¶':
      return u"\\P";
    case u'‖':
      return u"\\N";
    case u'↵':
      return u"\n";
    case u'→':
      return u"\t";
    case u'~':
      return u"\\~";
    case u'½':
      return u"\\S1/2;";
    default:
      return {sign};
  }
}

drawing read(std::string_view drawn) {
  drawing result;
  std::size_t at = 0, open = 0;
  for (const char16_t sign : odToUtf16(drawn)) {
    if (sign == u'|')
      result.selections.emplace_back(at);
    else if (sign == u'[' || sign == u'{')
      open = at;
    else if (sign == u']')
      result.selections.emplace_back(open, at);
    else if (sign == u'}')
      result.selections.emplace_back(at, open);
    else
      result.codes += code_of(sign), ++at;
  }
  return result;
}

char16_t sign_of(const mtext::geom_part& part) {
  switch (part.type()) {
    case mtext::part_string: {
      const char16_t letter = static_cast<const mtext::geom_word&>(part).text[0];
      return letter == u' ' ? u'~' : letter;
    }
    case mtext::part_tab:
      return u'→';
    case mtext::part_new_line:
      return u'↵';
    case mtext::part_stack:
      return u'½';
    case mtext::part_new_paragraph:
      return static_cast<const mtext::geom_new_paragraph&>(part).column_break ? u'‖' : u'¶';
    default:
      return u' ';
  }
}

/// The number of the key that types a character. Those of signs stand in no table: their own numbers would be
/// those of other keys.
unsigned key_of(char16_t character) {
  if (character >= u'a' && character <= u'z') return character - u'a' + u'A';
  const bool is_sign = character > u' ' && (character < u'0' || character > u'Z');
  return is_sign ? 0 : character;
}

const std::map<std::string, unsigned, std::less<>>& named_keys() {
  static const std::map<std::string, unsigned, std::less<>> keys{
      {"Backspace", VK_BACK}, {"Enter", VK_RETURN}, {"Esc", VK_ESCAPE}, {"PageUp", VK_PRIOR},
      {"PageDown", VK_NEXT},  {"End", VK_END},      {"Home", VK_HOME},  {"Left", VK_LEFT},
      {"Up", VK_UP},          {"Right", VK_RIGHT},  {"Down", VK_DOWN},  {"Insert", VK_INSERT},
      {"Delete", VK_DELETE}};
  return keys;
}

}  // namespace

mtext::convert_info wrapping(double width) {
  mtext::convert_info info;
  info.columns.width = width;
  return info;
}

edited_text::edited_text(const OdString& codes, const mtext::convert_info& info, int)
    : m_application(std::make_unique<WindowlessApplication>(OdDbDatabase::createEmpty())) {
  resources::register_strings();
  resources::register_menus();
  lay_flat(*m_application);
  m_session = std::make_unique<smart_edit>(m_application->document());
  text().setDatabaseDefaults(&m_application->document().database());
  text().setFinder(std::make_shared<mtext::stub_finder>());
  text().setLayoutInfo(info);
  text().setFrame(
      {.width = info.columns.width, .height = info.columns.heights[0], .attachment = text().attachment()});
  text().setDefaultFormat({.height = info.height, .height_kind = 0});
  text().setContents(codes);
  text().load();
}

edited_text edited_text::on_codes(const OdString& codes, const mtext::convert_info& info) {
  return edited_text(codes, info, 0);
}

edited_text::edited_text(std::string_view drawn, const mtext::convert_info& info)
    : edited_text(read(drawn).codes, info, 0) {
  text().setSelections(read(drawn).selections);
  text().endOfEdit(/*relayout=*/false);
}

void edited_text::key(std::string_view name) {
  HostHeldKeys::Keys held;
  int repeat = 1;
  if (const auto star = name.rfind('*'); star != name.npos && star > 0) {
    repeat = std::stoi(std::string(name.substr(star + 1)));
    name = name.substr(0, star);
  }
  for (std::size_t plus; (plus = name.find('+')) != name.npos && plus > 0; name.remove_prefix(plus + 1)) {
    const std::string_view modifier = name.substr(0, plus);
    held.shift |= modifier == "Shift";
    held.ctrl |= modifier == "Ctrl";
    held.alt |= modifier == "Alt";
  }
  m_application->keyState().hold(held);
  const auto named = named_keys().find(name);
  const std::u16string units = name == "Space" ? u" " : name == "Tab" ? u"\t" : odToUtf16(name);
  const char16_t character = units[0];
  const unsigned code = named == named_keys().end() ? key_of(character) : named->second;
  send({.number = WM_KEYDOWN, .code = code, .repeat = repeat});
  if (named == named_keys().end())
    for (const char16_t unit : units) send({.number = WM_CHAR, .code = unit, .repeat = repeat});
  send({.number = WM_KEYUP, .code = code});
  m_application->keyState().hold({});
}

edited_text& edited_text::keys(std::string_view list) {
  std::istringstream stream{std::string(list)};
  for (std::string name; stream >> name;) key(name);
  return *this;
}

std::string edited_text::drawn() const {
  const auto& parts = text().text().parts;
  const auto selections = text().selections();
  std::u16string result;
  for (std::size_t at = 0; at <= parts.size(); ++at) {
    for (const auto& each : selections)
      if (!each.empty() && each.end == at) result += each.caret_at_begin ? u'}' : u']';
    for (const auto& each : selections) {
      if (each.begin != at) continue;
      result += each.empty() ? u'|' : each.caret_at_begin ? u'{' : u'[';
    }
    if (at < parts.size()) result += sign_of(parts[at]);
  }
  return odToUtf8(result);
}

std::string edited_text::ended() {
  const auto typed = m_application->document().commandInput().take();
  if (!typed) return {};
  return std::holds_alternative<HostCancel>(*typed) ? "cancel" : "accept";
}
