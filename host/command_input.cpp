#include "host/command_input.h"

#include <utility>

void HostCommandInput::type(std::u16string_view text) {
  for (std::size_t at = 0; at < text.size(); ++at) {
    const std::u16string_view pair = text.substr(at, 2);
    if (pair == u"^M" || pair == u"^C") {
      pair == u"^M" ? endLine() : cancel();
      ++at;
    } else if (text[at] == u'\n') {
      endLine();
    } else {
      m_line += text[at];
    }
  }
}

void HostCommandInput::eraseLast() {
  if (!m_line.empty()) m_line.pop_back();
}

std::optional<HostInput> HostCommandInput::take() {
  if (m_waiting.empty()) return std::nullopt;
  HostInput first = std::move(m_waiting.front());
  m_waiting.pop_front();
  return first;
}

void HostCommandInput::endLine() { m_waiting.push_back(HostTypedLine{std::exchange(m_line, {})}); }

void HostCommandInput::cancel() {
  m_line.clear();
  m_waiting.push_back(HostCancel{});
}
