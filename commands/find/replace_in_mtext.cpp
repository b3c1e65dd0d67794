#include <iterator>

#include "commands/base/text_codes.h"
#include "commands/find/replace_in_text.h"
#include "commands/find/shown_matches.h"
#include "mtext/decode.h"
#include "mtext/entity/entity_format.h"
#include "mtext/entity/mtext_size_finder.h"
#include "mtext/mark_sweep.h"
#include "mtext/to_geom.h"
#include "od/db/OdDbDatabase.h"

namespace {

OdDbMTextPtr pointer_to(const OdDbMText& text) { return OdDbMTextPtr(const_cast<OdDbMText*>(&text)); }

/// A text in its elements, one for each character.
struct text_elements {
  mtext::format::string base;
  mtext::geom_multitext text;

  text_elements(const OdDbMText& entity, const mtext::string_size_finder& finder)
      : base(mtext::drawn_mtext_format(pointer_to(entity))) {
    mtext::multitext read;
    mtext::parse(codes_of(entity), base, read, mtext::fields_map());
    text = mtext::to_geom(read, entity.textHeight(), finder);
  }
};

char16_t shown_unit(const mtext::part& part) {
  switch (part.type()) {
    case mtext::part_string:
      return static_cast<const mtext::string&>(part).text.front();
    case mtext::part_spaces:
      return u' ';
    case mtext::part_tab:
      return u'\t';
    case mtext::part_new_line:
    case mtext::part_new_paragraph:
      return u'\n';
    default:
      return kNoCharacter;
  }
}

/// What the text shows, one unit for each element.
std::u16string shown_by(const mtext::geom_multitext& text) {
  std::u16string shown;
  mtext::marks::mark_sweep<mtext::marks::field> fields(text.marks);
  for (std::size_t at = 0; at < text.parts.size(); ++at)
    shown += fields.at(at) ? kNoCharacter : shown_unit(text.parts[at].part());
  return shown;
}

mtext::mtext_size_finder finder_for(const OdDbMText& text) {
  return mtext::mtext_size_finder{OdDbDatabasePtr(text.database())};
}

}  // namespace

std::size_t count_matches(const OdDbMText& text, const HostTextPattern& pattern) {
  const text_elements elements(text, finder_for(text));
  return shown_matches(pattern, shown_by(elements.text)).size();
}

std::size_t replace_in(OdDbMText& text, const HostTextPattern& pattern, std::u16string_view replacement,
                       std::optional<std::size_t> only) {
  const mtext::mtext_size_finder finder = finder_for(text);
  text_elements elements(text, finder);
  const auto matches = chosen(shown_matches(pattern, shown_by(elements.text), replacement), only);
  if (matches.empty()) return 0;
  std::vector<mtext::marks::replaced_range> ranges;
  mtext::geom_parts new_parts;
  for (const HostTextPattern::Match& match : matches) {
    const mtext::format::string& format = elements.text.parts[match.first].part().format;
    mtext::geom_multitext made = mtext::to_geom(match.replacement, format, text.textHeight(), finder);
    ranges.push_back({match.first, match.last - match.first, made.parts.size()});
    new_parts.transfer(new_parts.end(), made.parts);
  }
  elements.text.replace(ranges, new_parts);
  set_codes(text, mtext::encode(elements.text, elements.base, text.textHeight()));
  return matches.size();
}
