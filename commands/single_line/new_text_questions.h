#pragma once

class HostDocument;
struct new_text_settings;

/// Asks for place, justification, style, height and rotation of a new text. An empty answer to the first
/// question means the place below the text made last, with all that it has. False when it was cancelled.
bool ask_new_text(HostDocument& document, new_text_settings& settings);
