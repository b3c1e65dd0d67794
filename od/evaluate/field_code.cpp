#include "od/evaluate/field_code.h"

#include "od/base/trimmed.h"
#include "od/field/evaluator_name.h"

namespace {

/// The code without the evaluator's name and the version behind it.
std::u16string_view behindEvaluator(std::u16string_view code, std::u16string_view evaluator) {
  code.remove_prefix(static_cast<std::size_t>(evaluator.data() - code.data()) + evaluator.size());
  return code.substr(std::min(code.size(), code.find_first_not_of(u".0123456789")));
}

/// Takes `\f "..."` off the end of `text`.
std::u16string_view takeFormat(std::u16string_view& text) {
  constexpr std::u16string_view kOption = u"\\f \"";
  const std::size_t option = text.rfind(kOption);
  if (option == text.npos) return {};
  const std::size_t begin = option + kOption.size();
  const std::size_t end = text.find(u'"', begin);
  if (end == text.npos) return {};
  const std::u16string_view format = text.substr(begin, end - begin);
  text = text.substr(0, option);
  return format;
}

}  // namespace

OdFieldCode odReadFieldCode(std::u16string_view code) {
  OdFieldCode read;
  read.evaluator = field_code::evaluatorOf(code);
  if (read.evaluator.empty()) return read;
  std::u16string_view rest = behindEvaluator(code, read.evaluator);
  read.format = takeFormat(rest);
  read.subject = odTrimmed(rest, u" ");
  return read;
}
