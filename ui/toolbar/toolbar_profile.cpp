#include "ui/toolbar/toolbar_profile.h"

#include "host/application.h"
#include "host/exports.h"
#include "host/profile.h"

namespace toolbar {
namespace {

constexpr const char16_t* kSection = u"SCRIBE";
constexpr const char16_t* kLeft = u"ptpos.x";
constexpr const char16_t* kTop = u"ptpos.y";
constexpr const char16_t* kEnglishIcons = u"engIcons";

int number(const char16_t* name, int fallback) {
  HostApplication* application = host::application();
  return application ? application->profile().number(kSection, name, fallback) : fallback;
}

}  // namespace

HostPixel place_in_profile() { return {number(kLeft, 200), number(kTop, 300)}; }

void keep_place(const HostPixel& place) {
  HostApplication* application = host::application();
  if (!application) return;
  application->profile().setNumber(kSection, kLeft, place.x);
  application->profile().setNumber(kSection, kTop, place.y);
}

bool has_english_letters() { return number(kEnglishIcons, 0) != 0; }

}  // namespace toolbar
