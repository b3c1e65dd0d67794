#pragma once

class IProfile;

namespace host {

/// What is done with a text that cannot be read as it lies, for as long as it is edited. True: it is shown
/// facing the screen. False: the view moves to it. The user's choice, profile value "Text/Rotate".
bool turns_edited_text(const IProfile& profile);
void set_turns_edited_text(IProfile& profile, bool turns);

}  // namespace host
