#pragma once

struct HostWindowMessage;

/// The modifier keys at the moment of an event.
struct held_keys {
  bool shift = false;
  bool ctrl = false;
  bool alt = false;

  /// Ctrl as shortcuts mean it: Ctrl and Alt together are another key on many keyboards.
  bool ctrl_alone() const { return ctrl && !alt; }
};

/// What the application says is held down now, or else what came with the message.
held_keys keys_held(const HostWindowMessage& message);
