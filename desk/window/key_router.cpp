#include "desk/window/key_router.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>
#include <utility>

namespace {

bool isKey(const QEvent& event) {
  return event.type() == QEvent::KeyPress || event.type() == QEvent::KeyRelease;
}

/// Keys, and what an input method makes of them.
bool isTyping(const QEvent& event) { return isKey(event) || event.type() == QEvent::InputMethod; }

bool isButton(const QEvent& event) {
  return event.type() == QEvent::MouseButtonPress || event.type() == QEvent::MouseButtonRelease ||
         event.type() == QEvent::MouseButtonDblClick;
}

}  // namespace

KeyRouter::KeyRouter(QWidget& window, Ways ways) : m_window(window), m_ways(std::move(ways)) {
  qApp->installEventFilter(this);
}

bool KeyRouter::eventFilter(QObject* target, QEvent* event) {
  auto* widget = qobject_cast<QWidget*>(target);
  if (!widget || widget->window() != &m_window) return false;
  if (mustWait(event)) {
    m_held.push_back({widget, std::unique_ptr<QEvent>(event->clone())});
    return true;
  }
  return route(event);
}

bool KeyRouter::mustWait(QEvent* event) const {
  if (!isTyping(*event) && !isButton(*event)) return false;
  return !m_releasing && (m_ways.inputs_wait() || !m_held.empty());
}

bool KeyRouter::route(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride && (m_ways.has_session() || m_ways.inputs_wait())) {
    event->accept();
    return true;
  }
  if (!m_ways.has_session()) return false;
  if (!isKey(*event)) return false;
  m_ways.to_session(static_cast<const QKeyEvent&>(*event));
  return true;
}

void KeyRouter::release() {
  while (!m_held.empty() && !m_ways.inputs_wait()) {
    Held held = std::move(m_held.front());
    m_held.pop_front();
    QWidget* const focused = isTyping(*held.event) ? m_window.focusWidget() : nullptr;
    QWidget* const target = focused ? focused : held.target.data();
    if (!target) continue;
    m_releasing = true;
    QCoreApplication::sendEvent(target, held.event.get());
    m_releasing = false;
  }
}
