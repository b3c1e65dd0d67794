#pragma once

#include <string>
#include <string_view>

struct HostPromptRequest;

namespace host {

/// The prompt as the user reads it: "Specify height <2.5>:", "Save it? [Yes/No] <Yes>:".
std::u16string prompt_text(const HostPromptRequest& request);

/// `text` without the blanks at its ends.
std::u16string_view without_outer_blanks(std::u16string_view text);

}  // namespace host
