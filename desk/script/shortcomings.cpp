#include "desk/script/shortcomings.h"

#include "desk/script/script_desk.h"
#include "od/base/unicode.h"

std::vector<std::string> shortcomingsOf(ScriptDesk& desk, const std::string& script) {
  std::vector<std::string> sentences;
  if (desk.document().prompt().unanswered() > 0)
    sentences.push_back(script + ": the script ended while \"" + odToUtf8(desk.source().promptAtEnd()) +
                        "\" was asked.");
  if (desk.questions().unanswered() > 0)
    sentences.push_back(script + ": the question \"" + odToUtf8(desk.questions().shown().back()) +
                        "\" was not answered.");
  for (const std::u16string& choice : desk.refusedChoices())
    sentences.push_back(script + ": the menu has no entry \"" + odToUtf8(choice) + "\" that can be chosen.");
  return sentences;
}

bool didAll(const ScriptDesk& desk) {
  return desk.failures() == 0 && desk.questions().unanswered() == 0 && desk.refusedChoices().empty();
}
