#include "od/dxf/ascii_reader.h"

#include "od/base/whole_number.h"
#include "od/dxf/error.h"
#include "od/dxf/number_text.h"

namespace dxf {
namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
// Blanks, line ends, zeros and the Ctrl-Z that old systems put behind a text.
constexpr std::string_view kPadding("\0\t\n\r\x1A ", 6);
constexpr int kHighestCode = 32767;

// The start of a line for a message, without what a terminal could stumble over.
std::string quoted(std::string_view text) {
  std::string shown;
  for (const char c : text.substr(0, 24)) shown += c >= ' ' && c <= '~' ? c : '?';
  return '"' + shown + (text.size() > 24 ? "...\"" : "\"");
}

}  // namespace

AsciiReader::AsciiReader(std::string_view bytes, const std::string& name, Manner& manner)
    : GroupReader(bytes, name) {
  if (bytes_.starts_with(kByteOrderMark)) head_size_ = kByteOrderMark.size();
  position_ = head_size_;
  const std::size_t first_end = bytes_.find('\n');
  const bool has_return =
      first_end != std::string_view::npos && first_end > 0 && bytes_[first_end - 1] == '\r';
  manner.form = Form::ascii;
  manner.line_end = has_return ? "\r\n" : "\n";
}

AsciiReader::Line AsciiReader::line_at(std::size_t position) const {
  const std::size_t feed = bytes_.find('\n', position);
  const bool is_last = feed == std::string_view::npos;
  const std::size_t end = is_last ? bytes_.size() : feed + 1;
  std::string_view text = bytes_.substr(position, (is_last ? end : feed) - position);
  if (text.ends_with('\r')) text.remove_suffix(1);
  return {text, end};
}

bool AsciiReader::only_padding_left() const {
  return bytes_.find_first_not_of(kPadding, position_) == std::string_view::npos;
}

int AsciiReader::parse_code(std::string_view text) const {
  const auto code = odWholeNumber<int>(trim(text));
  if (!code || *code > kHighestCode || *code < -kHighestCode)
    throw Error::at_line(name_, line_, quoted(text) + " is not a group code");
  return *code;
}

std::optional<Group> AsciiReader::next() {
  if (position_ == bytes_.size()) return std::nullopt;
  const Line code_line = line_at(position_);
  if (code_line.text.find_first_not_of(kPadding) == std::string_view::npos && only_padding_left())
    return std::nullopt;
  const int code = parse_code(code_line.text);
  if (code_line.end == bytes_.size())
    throw Error::at_line(name_, line_, "the drawing ends in the middle of a group");
  const Line value_line = line_at(code_line.end);
  const auto line = static_cast<std::uint32_t>(line_);
  Group group(code, bytes_.substr(position_, value_line.end - position_), value_line.text, line);
  position_ = value_line.end;
  line_ += 2;
  return group;
}

}  // namespace dxf
