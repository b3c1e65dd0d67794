#include "od/dxf/drawing_template.h"

#include "od/dxf/number_text.h"

namespace dxf {
namespace {

std::string_view take_until(std::string_view& text, char end) {
  const std::size_t at = std::min(text.find(end), text.size());
  const std::string_view taken = text.substr(0, at);
  text.remove_prefix(std::min(at + 1, text.size()));
  return taken;
}

std::string value_bytes(int code, std::string_view value, const Manner& manner) {
  if (is_integer(value_type(code)))
    return manner.bytes_of_int(code, parse_int(value).value(), manner.width_of(value_type(code)));
  return std::string(value);
}

}  // namespace

std::string groups_of_template(std::string_view lines, const Manner& manner) {
  std::string bytes;
  while (!lines.empty()) {
    std::string_view line = take_until(lines, '\n');
    if (line.empty()) continue;
    if (line.starts_with(">=")) {
      const std::string_view from = take_until(line, ' ').substr(2);
      if (manner.version < parse_int(from).value()) continue;
    }
    const int code = static_cast<int>(parse_int(take_until(line, ' ')).value());
    bytes += manner.make(code, value_bytes(code, line, manner)).bytes();
  }
  return bytes;
}

}  // namespace dxf
