#include "desk/window/qt_input_source.h"

#include <QEventLoop>
#include <utility>

namespace {

const HostWindowMessage* mouseMove(const HostInput& input) {
  const auto* message = std::get_if<HostWindowMessage>(&input);
  return message && message->number == WM_MOUSEMOVE ? message : nullptr;
}

}  // namespace

HostInput QtInputSource::next() {
  while (m_inputs.empty() && !m_ended) {
    QEventLoop loop;
    QEventLoop* const outer = std::exchange(m_loop, &loop);
    loop.exec();
    m_loop = outer;
  }
  if (m_ended) return HostEndOfInput{};
  HostInput input = std::move(m_inputs.front());
  m_inputs.pop_front();
  if (const auto* message = std::get_if<HostWindowMessage>(&input))
    m_keys.hold({message->shift, message->ctrl, message->alt, m_keys.capsLock()});
  return input;
}

bool QtInputSource::replacesMove(const HostInput& input) const {
  return !m_inputs.empty() && mouseMove(input) && mouseMove(m_inputs.back());
}

void QtInputSource::push(HostInput input) {
  if (replacesMove(input)) m_inputs.pop_back();
  m_inputs.push_back(std::move(input));
  if (m_loop) m_loop->quit();
}

void QtInputSource::end() {
  m_ended = true;
  if (m_loop) m_loop->quit();
}
