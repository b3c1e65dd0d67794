#pragma once

#include <string_view>
#include <type_traits>

/// `text`, which is a view, without those characters at its two ends that are among `blanks`.
template <class View>
View odTrimmed(View text, std::type_identity_t<View> blanks) {
  const auto first = text.find_first_not_of(blanks);
  return first == View::npos ? View() : text.substr(first, text.find_last_not_of(blanks) - first + 1);
}
