#include "host/turned_text.h"

#include "host/profile.h"

namespace host {

namespace {

constexpr const char16_t* kSection = u"Text";
constexpr const char16_t* kName = u"Rotate";

}  // namespace

bool turns_edited_text(const IProfile& profile) { return profile.number(kSection, kName, 1) != 0; }

void set_turns_edited_text(IProfile& profile, bool turns) {
  if (turns != turns_edited_text(profile)) profile.setNumber(kSection, kName, turns);
}

}  // namespace host
