#include "editor/held_keys.h"

#include "host/application.h"
#include "host/exports.h"
#include "host/input.h"
#include "host/key_state.h"

held_keys keys_held(const HostWindowMessage& message) {
  held_keys held{message.shift, message.ctrl, message.alt};
  if (HostApplication* application = host::application()) {
    const IKeyState& keys = application->keyState();
    held.shift |= keys.shift();
    held.ctrl |= keys.ctrl();
    held.alt |= keys.alt();
  }
  return held;
}
