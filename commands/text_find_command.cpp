#include "commands/text_find_command.h"

#include <stdexcept>

#include "commands/show_text.h"
#include "commands/text_search.h"
#include "host/document.h"
#include "host/prompt.h"
#include "host/selection_set.h"
#include "host/translate.h"
#include "od/base/unicode.h"
#include "od/db/OdDbEntity.h"

namespace {

/// What the user looked for last, in whatever drawing; it lives as long as the program.
struct find_settings {
  std::u16string wanted;
  std::u16string replacement;
  HostTextPattern::Options options;
};

find_settings& last_settings() {
  static find_settings settings;
  return settings;
}

enum find_keyword : int { kNext, kReplace, kAll, kCase, kExpression, kExit };
constexpr const char16_t* kKeywords = u"Next Replace All Case Expression eXit";

std::u16string counted(std::size_t number) { return odToUtf16(std::to_string(number)); }

/// The dialogue of one run.
class find_dialogue {
 public:
  explicit find_dialogue(HostDocument& document)
      : m_document(document),
        m_prompt(document.prompt()),
        m_search(texts_to_search(document.database(), document.pickFirst())) {}

  int run() {
    const int answer =
        m_prompt.getString({.prompt = Supp_Translate(u"Find what"), .default_answer = m_settings.wanted},
                           /*whole_line=*/true, m_settings.wanted);
    if (answer != kAnswerValue) return kCommandCancelled;
    if (!look()) return kCommandDone;
    for (;;) {
      show();
      const int keyword = m_prompt.getKeyword({.prompt = Supp_Translate(u"Find"),
                                               .keywords = kKeywords,
                                               .default_answer = m_search.current() ? u"Next" : u"eXit"});
      if (keyword < 0) return kCommandCancelled;
      if (keyword == kExit || !obey(keyword)) return kCommandDone;
    }
  }

 private:
  /// Looks for the pattern as it is set now. False when it is none.
  bool look() {
    try {
      m_search.setPattern(HostTextPattern(m_settings.wanted, m_settings.options));
    } catch (const std::invalid_argument& error) {
      m_prompt.refuse(odToUtf16(error.what()));
      return false;
    }
    m_prompt.message(Supp_Translate(u"Matches:") + u" " + counted(m_search.matchCount()) + u"; " +
                     Supp_Translate(u"texts:") + u" " + counted(m_search.textCount()));
    return true;
  }

  void show() {
    if (const auto place = m_search.current()) {
      const auto text = odCast<OdDbEntity>(place->text.openObject());
      show_text(m_document, *text);
    }
  }

  /// False when the command is done.
  bool obey(int keyword) {
    switch (keyword) {
      case kNext:
        if (!m_search.next()) m_prompt.message(Supp_Translate(u"From the beginning."));
        return true;
      case kReplace:
        return replace(&find_dialogue::replaceOne);
      case kAll:
        replace(&find_dialogue::replaceEvery);
        return false;
      case kCase:
        return toggle(u"Case is ignored:", &HostTextPattern::Options::ignores_case);
      default:
        return toggle(u"Regular expression:", &HostTextPattern::Options::is_expression);
    }
  }

  bool toggle(std::u16string_view name, bool HostTextPattern::Options::*option) {
    bool& value = m_settings.options.*option;
    value = !value;
    m_prompt.message(Supp_Translate(name) + u" " + Supp_Translate(value ? u"yes" : u"no"));
    if (look()) return true;
    // What is no expression is looked for as it stands, as before.
    value = !value;
    return look();
  }

  /// Asks for the replacement and replaces. False for cancel.
  bool replace(void (find_dialogue::*how)()) {
    if (!m_search.current()) {
      m_prompt.refuse(Supp_Translate(u"There is nothing to replace."));
      return true;
    }
    if (!askReplacement()) return false;
    try {
      (this->*how)();
    } catch (const std::invalid_argument& error) {
      m_prompt.refuse(odToUtf16(error.what()));
      m_asked = false;
    }
    return true;
  }

  bool askReplacement() {
    if (m_asked) return true;
    const int answer =
        m_prompt.read_input(Supp_Translate(u"Replace with"), u"",
                            kReadWholeLine | kReadKeepBlanks | kReadMayBeEmpty, &m_settings.replacement);
    m_asked = answer == kAnswerValue;
    return m_asked;
  }

  void replaceOne() { m_search.replace(m_settings.replacement); }

  void replaceEvery() {
    const std::size_t matches = m_search.matchCount(), texts = m_search.textCount();
    m_search.replaceAll(m_settings.replacement);
    m_prompt.message(Supp_Translate(u"Replaced:") + u" " + counted(matches) + u"; " +
                     Supp_Translate(u"texts:") + u" " + counted(texts));
  }

  HostDocument& m_document;
  HostEdPrompt& m_prompt;
  text_search m_search;
  find_settings& m_settings = last_settings();
  bool m_asked = false;  ///< the replacement, in this run
};

}  // namespace

int CTextFindCmd::runIn(HostDocument& document) { return find_dialogue(document).run(); }
