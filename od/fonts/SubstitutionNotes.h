#pragma once

#include <set>
#include <tuple>
#include <vector>

#include "od/base/unicode.h"
#include "od/fonts/OdFontSubstitution.h"

/// What was substituted, each once, in the order of discovery. Shared by a library and the fonts that it gave
/// out, since these find missing characters later.
class SubstitutionNotes {
 public:
  /// Names count without case. Does nothing when the same font, or another character of the same font, is
  /// noted already.
  void add(OdFontSubstitution note) {
    bool isNew = m_known.emplace(note.kind, odLowerAscii(note.wanted), note.used).second;
    if (isNew) m_all.push_back(std::move(note));
  }
  const std::vector<OdFontSubstitution>& all() const { return m_all; }

 private:
  std::vector<OdFontSubstitution> m_all;
  std::set<std::tuple<OdFontSubstitution::Kind, std::u16string, std::u16string>> m_known;
};
