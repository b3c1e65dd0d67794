#pragma once

struct HostWindowMessage;
class smart_edit;

namespace editing {

/// A key went down: does what the key table says for it. A key that the table does not handle lets its
/// character message pass.
void handle_key_down(smart_edit& session, const HostWindowMessage& message);

/// A character was typed. Ignored while a handled key is down, and while Ctrl is held.
void handle_character(smart_edit& session, const HostWindowMessage& message);

}  // namespace editing
