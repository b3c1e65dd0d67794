#include "desk/script/step_messages.h"

#include <array>
#include <optional>

#include "desk/script/key_character.h"
#include "desk/script/key_names.h"
#include "host/key_code.h"

namespace {

using Messages = std::vector<HostWindowMessage>;

HostWindowMessage message(unsigned number, unsigned code, const HeldKeys& held) {
  return {.number = number, .code = code, .shift = held.shift, .ctrl = held.ctrl, .alt = held.alt};
}

struct Modifier {
  bool HeldKeys::*held;
  unsigned key;
};

constexpr std::array<Modifier, 3> kModifiers{
    {{&HeldKeys::ctrl, VK_CONTROL}, {&HeldKeys::shift, VK_SHIFT}, {&HeldKeys::alt, VK_MENU}}};

HeldKeys pressModifiers(const HeldKeys& wanted, Messages& messages) {
  HeldKeys held;
  for (const Modifier& modifier : kModifiers) {
    if (!(wanted.*modifier.held)) continue;
    held.*modifier.held = true;
    messages.push_back(message(WM_KEYDOWN, modifier.key, held));
  }
  return held;
}

void releaseModifiers(HeldKeys held, Messages& messages) {
  for (auto modifier = kModifiers.rbegin(); modifier != kModifiers.rend(); ++modifier) {
    if (!(held.*modifier->held)) continue;
    held.*modifier->held = false;
    messages.push_back(message(WM_KEYUP, modifier->key, held));
  }
}

void strike(const KeyChord& chord, std::optional<char16_t> character, Messages& messages) {
  const HeldKeys held = pressModifiers(chord.held, messages);
  const auto key = static_cast<unsigned>(chord.key);
  messages.push_back(message(WM_KEYDOWN, key, held));
  if (character) messages.push_back(message(WM_CHAR, *character, held));
  messages.push_back(message(WM_KEYUP, key, held));
  releaseModifiers(held, messages);
}

std::vector<unsigned> numbersOf(MouseAction action) {
  switch (action) {
    case MouseAction::click:
      return {WM_SETCURSOR, WM_MOUSEMOVE, WM_LBUTTONDOWN, WM_LBUTTONUP};
    case MouseAction::twice:
      return {WM_SETCURSOR, WM_MOUSEMOVE, WM_LBUTTONDOWN, WM_LBUTTONUP, WM_LBUTTONDBLCLK, WM_LBUTTONUP};
    case MouseAction::press:
      return {WM_SETCURSOR, WM_MOUSEMOVE, WM_LBUTTONDOWN};
    case MouseAction::drag:
      return {WM_MOUSEMOVE};
    case MouseAction::release:
      return {WM_LBUTTONUP};
    case MouseAction::right:
      return {WM_SETCURSOR, WM_MOUSEMOVE, WM_RBUTTONDOWN, WM_RBUTTONUP};
  }
  return {};
}

}  // namespace

std::vector<HostWindowMessage> messagesOf(const MouseStep& step) {
  Messages messages;
  for (unsigned number : numbersOf(step.action)) {
    messages.push_back(message(number, 0, step.held));
    messages.back().point = {step.x, step.y, 0};
  }
  return messages;
}

std::vector<HostWindowMessage> messagesOf(const TypeCharacters& step) {
  Messages messages;
  for (char16_t unit : step.text) {
    const KeyOfCharacter typed = keyOfCharacter(unit);
    strike({typed.key, {.shift = typed.shift}}, unit, messages);
  }
  return messages;
}

std::vector<HostWindowMessage> messagesOf(const PressKey& step) {
  Messages messages;
  strike(step.chord, characterOfChord(step.chord), messages);
  return messages;
}
