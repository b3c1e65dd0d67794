#pragma once

class HostDocument;
struct new_text_settings;

/// Has texts typed in the view, the lines of one below the other; a press beside them begins the next text
/// there. Returns a `CommandStatus`.
int create_in_place(HostDocument& document, new_text_settings settings);

/// Has texts typed at the prompt, one below the other, until a line stays empty. Returns a `CommandStatus`.
int create_typed(HostDocument& document, new_text_settings settings);
