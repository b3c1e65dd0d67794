#include "desk/window/qt_input_source.h"

#include <QEventLoop>
#include <utility>

namespace {

/// Whether nobody needs to read `input` any more when `next` comes. A move comes behind the question for the
/// cursor at the same point, which stays.
bool isOutdatedBy(const HostWindowMessage& next, const HostInput& input) {
  const auto* message = std::get_if<HostWindowMessage>(&input);
  if (!message) return false;
  return message->number == WM_MOUSEMOVE || (message->number == WM_SETCURSOR && next.number == WM_SETCURSOR);
}

}  // namespace

void QtInputSource::wait() {
  m_on_idle();
  if (!m_inputs.empty() || m_ended) return;
  QEventLoop loop;
  QEventLoop* const outer = std::exchange(m_loop, &loop);
  loop.exec();
  m_loop = outer;
}

HostInput QtInputSource::next() {
  while (m_inputs.empty() && !m_ended) wait();
  if (m_ended) return HostEndOfInput{};
  HostInput input = std::move(m_inputs.front());
  m_inputs.pop_front();
  if (const auto* message = std::get_if<HostWindowMessage>(&input))
    m_keys.hold({message->shift, message->ctrl, message->alt, m_keys.capsLock()});
  return input;
}

void QtInputSource::push(HostInput input) {
  m_inputs.push_back(std::move(input));
  if (m_loop) m_loop->quit();
}

void QtInputSource::pushMove(HostWindowMessage move) {
  while (!m_inputs.empty() && isOutdatedBy(move, m_inputs.back())) m_inputs.pop_back();
  push(move);
}

void QtInputSource::end() {
  m_ended = true;
  if (m_loop) m_loop->quit();
}
