#include "host/prompt_text.h"

#include "host/keyword_list.h"
#include "host/prompt.h"
#include "od/base/trimmed.h"

namespace host {

std::u16string prompt_text(const HostPromptRequest& request) {
  std::u16string text = request.prompt;
  const std::u16string keywords = HostKeywordList(request.keywords).shown();
  const bool tells_keywords = text.find(u'[') != text.npos;
  if (!keywords.empty() && !tells_keywords) text += u" [" + keywords + u"]";
  if (!request.default_answer.empty()) text += u" <" + request.default_answer + u">";
  const bool is_closed = text.ends_with(u':') || text.ends_with(u'.') || text.ends_with(u'?');
  if (!text.empty() && !is_closed) text += u':';
  return text;
}

std::u16string_view without_outer_blanks(std::u16string_view text) { return odTrimmed(text, u" \t"); }

}  // namespace host
