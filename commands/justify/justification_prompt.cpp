#include "commands/justify/justification_prompt.h"

#include "host/keyword_list.h"
#include "host/prompt.h"
#include "host/translate.h"
#include "ui/resources/message_format.h"

namespace {

constexpr int kSelectJustification = 1051;
constexpr int kJustifications = 1052;

HostKeywordList justifications() { return HostKeywordList(host::resource_string(kJustifications)); }

}  // namespace

int ask_justification(HostEdPrompt& prompt) {
  return prompt.getKeyword(
      {.prompt = resources::format_string(kSelectJustification, {justifications().shown()}),
       .keywords = host::resource_string(kJustifications),
       .may_be_empty = true});
}

std::u16string justification_name(int index) {
  return justifications().name(static_cast<std::size_t>(index));
}

std::optional<int> justification_of(const std::u16string& global_name) {
  const HostKeywordList all = justifications();
  for (std::size_t at = 0; at < all.size(); ++at)
    if (all.globalName(at) == global_name) return static_cast<int>(at);
  return global_name == u"Start" ? std::optional(0) : std::nullopt;
}
