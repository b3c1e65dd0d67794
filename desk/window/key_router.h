#pragma once

#include <QObject>
#include <QPointer>
#include <deque>
#include <functional>
#include <memory>

class QEvent;
class QKeyEvent;
class QWidget;

/// Decides where a key of the main window goes. While an editing session is open every key is the session's:
/// none reaches the command line, a menu or a shortcut. And while inputs wait that nobody has worked on yet,
/// keys, composed text and mouse buttons wait behind them, since only then is it known whose they are.
class KeyRouter : public QObject {
 public:
  /// The questions that the router asks, and where it sends the keys of a session.
  struct Ways {
    std::function<bool()> has_session;
    std::function<bool()> inputs_wait;
    std::function<void(const QKeyEvent&)> to_session;
  };

  /// Watches all events that go to `window` and what is in it.
  KeyRouter(QWidget& window, Ways ways);

  /// Lets the events that wait go, one after the other, until one of them has become an input.
  void release();

 protected:
  bool eventFilter(QObject* target, QEvent* event) override;

 private:
  bool route(QEvent* event);
  bool mustWait(QEvent* event) const;

  struct Held {
    QPointer<QWidget> target;
    std::unique_ptr<QEvent> event;
  };

  QWidget& m_window;
  Ways m_ways;
  std::deque<Held> m_held;
  bool m_releasing = false;
};
