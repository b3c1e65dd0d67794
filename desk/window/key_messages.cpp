#include "desk/window/key_messages.h"

#include <QKeyEvent>

#include "desk/window/virtual_key.h"

namespace {

constexpr unsigned kComposedKey = 231;
constexpr char16_t kDeleteCode = 127;

/// AltGr comes as Ctrl and Alt on some systems, and is known by the letter that it typed: with the two keys
/// themselves there is none, or a control code.
bool isTypedByAltGr(const QKeyEvent& event) {
  const bool both = event.modifiers().testFlags(Qt::ControlModifier | Qt::AltModifier);
  return both && !event.text().isEmpty() && event.text()[0] >= QChar(u' ') &&
         event.text()[0] != QChar(kDeleteCode);
}

/// The units that arrive as WM_CHAR. A key with Alt is a menu's, and Delete has no character. Tab with Shift
/// is a key of its own to the toolkit, some systems give it no character.
QString charactersOf(const QKeyEvent& event) {
  if (event.modifiers() & Qt::AltModifier) return {};
  if (event.key() == Qt::Key_Backtab) return QStringLiteral("\t");
  const bool isDelete = event.text().size() == 1 && event.text()[0] == QChar(kDeleteCode);
  return isDelete ? QString() : event.text();
}

}  // namespace

std::vector<HostWindowMessage> keyMessages(const QKeyEvent& event) {
  const bool down = event.type() == QEvent::KeyPress;
  if (!down && event.isAutoRepeat()) return {};
  if (down && isTypedByAltGr(event)) return composedMessages(event.text(), event.count());
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

std::vector<HostWindowMessage> composedMessages(const QString& text, int repeat) {
  std::vector<HostWindowMessage> messages;
  for (const QChar unit : text) {
    // The halves of a character belong to one key.
    if (!unit.isLowSurrogate()) messages.push_back({.number = WM_KEYDOWN, .code = kComposedKey});
    messages.push_back({.number = WM_CHAR, .code = unit.unicode(), .repeat = repeat});
    if (!unit.isHighSurrogate()) messages.push_back({.number = WM_KEYUP, .code = kComposedKey});
  }
  return messages;
}
