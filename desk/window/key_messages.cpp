#include "desk/window/key_messages.h"

#include <QKeyEvent>

#include "desk/window/virtual_key.h"

namespace {

constexpr unsigned kComposedKey = 231;
constexpr char16_t kDeleteCode = 127;

/// The units that arrive as WM_CHAR. A key with Alt is a menu's, and Delete has no character.
QString charactersOf(const QKeyEvent& event) {
  if (event.modifiers() & Qt::AltModifier) return {};
  const bool isDelete = event.text().size() == 1 && event.text()[0] == QChar(kDeleteCode);
  return isDelete ? QString() : event.text();
}

}  // namespace

std::vector<HostWindowMessage> keyMessages(const QKeyEvent& event) {
  const bool down = event.type() == QEvent::KeyPress;
  if (!down && event.isAutoRepeat()) return {};
  HostWindowMessage message{.number = unsigned(down ? WM_KEYDOWN : WM_KEYUP),
                            .code = static_cast<unsigned>(virtualKeyOf(event)),
                            .repeat = event.count(),
                            .shift = event.modifiers().testFlag(Qt::ShiftModifier),
                            .ctrl = event.modifiers().testFlag(Qt::ControlModifier),
                            .alt = event.modifiers().testFlag(Qt::AltModifier)};
  std::vector<HostWindowMessage> messages{message};
  if (!down) return messages;
  message.number = WM_CHAR;
  for (const QChar unit : charactersOf(event)) {
    message.code = unit.unicode();
    messages.push_back(message);
  }
  return messages;
}

std::vector<HostWindowMessage> composedMessages(const QString& text) {
  std::vector<HostWindowMessage> messages;
  for (const QChar unit : text) {
    messages.push_back({.number = WM_KEYDOWN, .code = kComposedKey});
    messages.push_back({.number = WM_CHAR, .code = unit.unicode()});
    messages.push_back({.number = WM_KEYUP, .code = kComposedKey});
  }
  return messages;
}
