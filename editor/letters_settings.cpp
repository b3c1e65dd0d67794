#include "editor/letters_settings.h"

#include <algorithm>

#include "host/application.h"
#include "host/exports.h"
#include "host/settings.h"
#include "host/translate.h"
#include "host/user_language.h"

namespace editing {

namespace {

std::u16string value_of(const IParam* node, std::u16string_view name) {
  return node ? node->value(name).value_or(std::u16string()) : std::u16string();
}

}  // namespace

mtext::marks::letters_dictionary from_iparam(const IParam* node) {
  mtext::marks::letters_dictionary letters;
  if (!node) return letters;
  for (const std::u16string& key : node->childNames()) {
    const IParam* child = node->child(key);
    letters.push_back({key, value_of(child, u"name"), value_of(child, u"lower"), value_of(child, u"upper")});
  }
  return letters;
}

void translate_letters(mtext::marks::letters_dictionary& letters, std::u16string_view language) {
  if (language.empty()) return;
  const std::u16string lower = Supp_Translate(letters.front().lower);
  const std::u16string upper = Supp_Translate(letters.front().upper);
  if (lower == letters.front().lower || upper == letters.front().upper) return;
  const auto found =
      std::find_if(letters.begin(), letters.end(),
                   [language](const mtext::marks::alphabet& each) { return each.key == language; });
  if (found == letters.end()) return;
  found->lower = lower;
  found->upper = upper;
}

mtext::marks::letters_dictionary session_letters(const IParam* settings, std::u16string_view language) {
  auto letters = from_iparam(settings ? settings->child(u"NamedListAlphabet") : nullptr);
  if (letters.empty()) letters = mtext::marks::default_letters();
  translate_letters(letters, language);
  return letters;
}

mtext::marks::letters_dictionary session_letters() {
  HostApplication* application = host::application();
  return session_letters(application ? &application->settings() : nullptr, host::user_language());
}

}  // namespace editing
