#include "host/user_language.h"
#include "ui/resources/languages.h"

// Runs when the module is loaded: from then on it speaks its user's language.

namespace {

[[maybe_unused]] const bool kLanguage = (resources::speak(host::user_language()), true);

}  // namespace
