#pragma once

#include <span>
#include <string_view>

#include "host/translate.h"

/// The languages that the module speaks.
namespace resources {

/// What the module says in one language.
struct Language {
  std::u16string_view key;                  ///< three-letter abbreviation in lower case, such as "deu"
  std::span<const ResourceString> strings;  ///< the numbers of `string_table`, in ascending order
};

/// All languages, English first.
std::span<const Language> languages();

/// Has the host translate every text of the module into a language, or into none if there is no such
/// language here.
void speak(std::u16string_view key);

// The tables, each in the file of its language.
std::span<const ResourceString> german_strings();
std::span<const ResourceString> russian_strings();

}  // namespace resources
