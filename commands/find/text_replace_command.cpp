#include "commands/find/text_replace_command.h"

#include <optional>
#include <stdexcept>

#include "commands/base/selected_texts.h"
#include "commands/find/replace_in_text.h"
#include "host/document.h"
#include "host/prompt.h"
#include "host/translate.h"
#include "od/base/unicode.h"
#include "ui/resources/message_format.h"

namespace {

// Strings.
constexpr int kFindWhat = 1350, kReplaceWith = 1353, kReplaced = 1355, kFind = 1351;

/// Ways to look, in the order of their keywords.
constexpr const char16_t* kKeywords = u"Words AnyCase Expression AnyCaseExpression";
constexpr HostTextPattern::Options kWays[] = {{.is_expression = false, .ignores_case = false},
                                              {.is_expression = false, .ignores_case = true},
                                              {.is_expression = true, .ignores_case = false},
                                              {.is_expression = true, .ignores_case = true}};

/// A line with all its blanks; false when the user thinks better of it.
bool ask_line(HostEdPrompt& prompt, int question, unsigned flags, std::u16string& line) {
  return prompt.read_input(host::resource_string(question), u"",
                           kReadWholeLine | kReadKeepBlanks | kReadBlanksAlone | flags,
                           &line) == kAnswerValue;
}

/// Replaces in all texts of one kind; the numbers of matches and texts grow.
template <class Text>
void replace_all(HostDocument& document, const std::vector<OdSmartPtr<Text>>& texts,
                 const HostTextPattern& pattern, std::u16string_view replacement, std::size_t& matches,
                 std::size_t& changed) {
  for (const auto& text : texts) {
    const std::size_t replaced = replace_in(*text, pattern, replacement);
    if (replaced == 0) continue;
    matches += replaced;
    ++changed;
    document.entityChanged(text->objectId());
  }
}

}  // namespace

int CTextReplaceCmd::runIn(HostDocument& document) {
  HostEdPrompt& prompt = document.prompt();
  const auto selected = ask_for_texts(document);
  if (!selected) return kCommandCancelled;
  std::u16string wanted, replacement;
  if (!ask_line(prompt, kFindWhat, 0, wanted)) return kCommandCancelled;
  if (!ask_line(prompt, kReplaceWith, kReadMayBeEmpty, replacement)) return kCommandCancelled;
  const int way = prompt.getKeyword(
      {.prompt = host::resource_string(kFind), .keywords = kKeywords, .default_answer = u"Words"});
  if (way < 0) return kCommandCancelled;
  const selected_texts texts = open_texts(*selected);
  std::size_t matches = 0, changed = 0;
  try {
    const HostTextPattern pattern(wanted, kWays[way]);
    replace_all(document, texts.single_line, pattern, replacement, matches, changed);
    replace_all(document, texts.multi_line, pattern, replacement, matches, changed);
  } catch (const std::invalid_argument& error) {
    prompt.refuse(odToUtf16(error.what()));
  }
  prompt.message(
      resources::format_string(kReplaced, {static_cast<double>(matches), static_cast<double>(changed)}));
  return kCommandDone;
}
