#include "commands/find/text_find_command.h"

#include <stdexcept>

#include "commands/find/show_text.h"
#include "commands/find/text_search.h"
#include "host/document.h"
#include "host/keyword_list.h"
#include "host/prompt.h"
#include "host/selection_set.h"
#include "host/translate.h"
#include "od/base/unicode.h"
#include "od/db/OdDbEntity.h"
#include "ui/resources/message_format.h"

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

// Strings.
constexpr int kFindWhat = 1350, kFind = 1351, kKeywords = 1352, kReplaceWith = 1353;
constexpr int kMatches = 1354, kReplaced = 1355, kFromTheBeginning = 1356, kNothingToReplace = 1361;
constexpr int kCaseIgnored = 1357, kCaseCounts = 1358, kRegularExpression = 1359, kPlainWords = 1360;

enum find_keyword : int { kNext, kReplace, kAll, kCase, kExpression, kExit };

std::u16string counted(int message, std::size_t matches, std::size_t texts) {
  return resources::format_string(message, {static_cast<double>(matches), static_cast<double>(texts)});
}

/// The dialogue of one run.
class find_dialogue {
 public:
  explicit find_dialogue(HostDocument& document)
      : m_document(document),
        m_prompt(document.prompt()),
        m_search(texts_to_search(document.database(), document.pickFirst())) {}

  int run() {
    const int answer =
        m_prompt.getString({.prompt = host::resource_string(kFindWhat), .default_answer = m_settings.wanted},
                           /*whole_line=*/true, m_settings.wanted);
    if (answer != kAnswerValue) return kCommandCancelled;
    if (!look()) return kCommandDone;
    for (;;) {
      show();
      const int keyword = askKeyword();
      if (keyword < 0) return kCommandCancelled;
      if (keyword == kExit || !obey(keyword)) return kCommandDone;
    }
  }

 private:
  int askKeyword() {
    const std::u16string keywords = host::resource_string(kKeywords);
    const find_keyword usual = m_search.current() ? kNext : kExit;
    return m_prompt.getKeyword({.prompt = host::resource_string(kFind),
                                .keywords = keywords,
                                .default_answer = HostKeywordList(keywords).name(usual)});
  }

  /// Looks for the pattern as it is set now. False when it is none.
  bool look() {
    try {
      m_search.setPattern(HostTextPattern(m_settings.wanted, m_settings.options));
    } catch (const std::invalid_argument& error) {
      m_prompt.refuse(odToUtf16(error.what()));
      return false;
    }
    m_prompt.message(counted(kMatches, m_search.matchCount(), m_search.textCount()));
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
        if (!m_search.next()) m_prompt.message(host::resource_string(kFromTheBeginning));
        return true;
      case kReplace:
        return replace(&find_dialogue::replaceOne);
      case kAll:
        replace(&find_dialogue::replaceEvery);
        return false;
      case kCase:
        return toggle(&HostTextPattern::Options::ignores_case, kCaseIgnored, kCaseCounts);
      default:
        return toggle(&HostTextPattern::Options::is_expression, kRegularExpression, kPlainWords);
    }
  }

  /// Turns an option on or off, and tells which; each has a string.
  bool toggle(bool HostTextPattern::Options::*option, int on, int off) {
    bool& value = m_settings.options.*option;
    value = !value;
    m_prompt.message(host::resource_string(value ? on : off));
    if (look()) return true;
    // What is no expression is looked for as it stands, as before.
    value = !value;
    return look();
  }

  /// Asks for the replacement and replaces. False for cancel.
  bool replace(void (find_dialogue::*how)()) {
    if (!m_search.current()) {
      m_prompt.refuse(host::resource_string(kNothingToReplace));
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
    const int answer = m_prompt.read_input(
        host::resource_string(kReplaceWith), u"",
        kReadWholeLine | kReadKeepBlanks | kReadBlanksAlone | kReadMayBeEmpty, &m_settings.replacement);
    m_asked = answer == kAnswerValue;
    return m_asked;
  }

  void replaceOne() { m_search.replace(m_settings.replacement); }

  void replaceEvery() {
    const std::size_t matches = m_search.matchCount(), texts = m_search.textCount();
    m_search.replaceAll(m_settings.replacement);
    m_prompt.message(counted(kReplaced, matches, texts));
  }

  HostDocument& m_document;
  HostEdPrompt& m_prompt;
  text_search m_search;
  find_settings& m_settings = last_settings();
  bool m_asked = false;  ///< the replacement, in this run
};

}  // namespace

int CTextFindCmd::runIn(HostDocument& document) { return find_dialogue(document).run(); }
