#pragma once

/// Numbers of the keys in `HostWindowMessage::code` for key messages. Letters and digits have the number of
/// their upper case character.
enum HostKeyCode : unsigned {
  VK_BACK = 8,
  VK_TAB = 9,
  VK_RETURN = 13,
  VK_SHIFT = 16,
  VK_CONTROL = 17,
  VK_MENU = 18,
  VK_CAPITAL = 20,
  VK_ESCAPE = 27,
  VK_SPACE = 32,
  VK_PRIOR = 33,
  VK_NEXT = 34,
  VK_END = 35,
  VK_HOME = 36,
  VK_LEFT = 37,
  VK_UP = 38,
  VK_RIGHT = 39,
  VK_DOWN = 40,
  VK_INSERT = 45,
  VK_DELETE = 46,
  VK_F1 = 112,
};
