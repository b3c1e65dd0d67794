#include "od/evaluate/format_options.h"

#include <string>

std::optional<OdFormatOption> odFormatOption(std::u16string_view format, std::u16string_view name) {
  const std::u16string wanted = std::u16string(u"%").append(name);
  const std::size_t found = format.find(wanted);
  if (found == format.npos) return {};
  std::u16string_view rest = format.substr(found + wanted.size());
  OdFormatOption option;
  constexpr int kMost = 100'000;
  while (!rest.empty() && rest.front() >= u'0' && rest.front() <= u'9' && option.number.value_or(0) < kMost) {
    option.number = option.number.value_or(0) * 10 + (rest.front() - u'0');
    rest.remove_prefix(1);
  }
  const std::size_t end = rest.find(u']');
  if (rest.starts_with(u'[') && end != rest.npos) option.brackets = rest.substr(1, end - 1);
  return option;
}

int odFormatNumber(std::u16string_view format, std::u16string_view name, int fallback) {
  const auto option = odFormatOption(format, name);
  return option ? option->number.value_or(fallback) : fallback;
}
