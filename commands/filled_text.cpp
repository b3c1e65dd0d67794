#include "commands/filled_text.h"

#include <stdexcept>

std::u16string filled_text(std::u16string_view message, std::initializer_list<std::u16string_view> texts) {
  constexpr std::u16string_view kPlace = u"%s";
  std::u16string filled;
  for (const std::u16string_view& text : texts) {
    const std::size_t place = message.find(kPlace);
    if (place == message.npos) throw std::invalid_argument("filled_text: more texts than places");
    filled.append(message.substr(0, place)).append(text);
    message.remove_prefix(place + kPlace.size());
  }
  if (message.find(kPlace) != message.npos)
    throw std::invalid_argument("filled_text: more places than texts");
  return filled.append(message);
}
