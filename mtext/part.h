#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "mtext/format.h"
#include "od/base/export.h"

namespace mtext {

/// What the `type()` of a part tells.
enum part_type : std::uint32_t {
  part_string = 0,
  part_spaces = 1,
  part_tab = 2,
  part_new_line = 3,
  part_stack = 4,
  part_new_paragraph = 5,
  part_field = 6
};

/// One element of a logical text. It carries its whole character format: there is no tree of formats.
/// Callers ask `type()` and cast statically. Constructors take the format, then the fields in their order.
struct SCRIBE_EXPORT part {
  mtext::format::string format;  ///< of all of its characters

  virtual ~part() = default;
  /// A number of `part_type`.
  virtual std::uint32_t type() const = 0;
  /// A new part of the same class, owned by the caller.
  virtual part* clone() const = 0;

 protected:
  explicit part(mtext::format::string f) : format(std::move(f)) {}
  part(const part&) = default;
  part(part&&) = default;
  part& operator=(const part&) = default;
  part& operator=(part&&) = default;
};

/// A word. A blank inside `text` is one that does not break.
struct SCRIBE_EXPORT string : part {
  std::u16string text;  ///< UTF-16 units, without breakable blanks and tabs

  string(mtext::format::string f, std::u16string t) : part(std::move(f)), text(std::move(t)) {}
  std::uint32_t type() const override { return part_string; }
  string* clone() const override { return new string(*this); }
};

/// A run of `count` blanks at which a line may break.
struct SCRIBE_EXPORT spaces : part {
  std::uint32_t count;  ///< at least 1

  spaces(mtext::format::string f, std::uint32_t n) : part(std::move(f)), count(n) {}
  std::uint32_t type() const override { return part_spaces; }
  spaces* clone() const override { return new spaces(*this); }
};

/// A tab character.
struct SCRIBE_EXPORT tab : part {
  explicit tab(mtext::format::string f) : part(std::move(f)) {}
  std::uint32_t type() const override { return part_tab; }
  tab* clone() const override { return new tab(*this); }
};

/// A line break inside a paragraph.
struct SCRIBE_EXPORT new_line : part {
  explicit new_line(mtext::format::string f) : part(std::move(f)) {}
  std::uint32_t type() const override { return part_new_line; }
  /// Deliberately forgets the format: texts that went through `clone` have always been written with line
  /// breaks in the default format, and drawings hold what that wrote.
  new_line* clone() const override { return new new_line(mtext::format::string()); }
};

/// A stacked fraction. `format.height` is the height of the surrounding text; the digits are drawn at 0.7 of
/// it.
struct SCRIBE_EXPORT stack : part {
  std::u16string numerator;    ///< plain text; may be empty, as the denominator may
  std::u16string denominator;  ///< plain text
  /// The separator: 0 `/`, 1 `^`, 2 `#`.
  std::uint32_t kind;

  stack(mtext::format::string f, std::u16string above, std::u16string below, std::uint32_t k)
      : part(std::move(f)), numerator(std::move(above)), denominator(std::move(below)), kind(k) {}
  std::uint32_t type() const override { return part_stack; }
  stack* clone() const override { return new stack(*this); }
};

/// The end of a paragraph and the beginning of the next.
struct SCRIBE_EXPORT new_paragraph : part {
  /// The whole format of the paragraph that begins here, no difference to the one before.
  mtext::format::paragraph paragraph;
  /// The next paragraph stands in a new column.
  bool column_break;

  new_paragraph(mtext::format::paragraph p, mtext::format::string f, bool breaks_column)
      : part(std::move(f)), paragraph(std::move(p)), column_break(breaks_column) {}
  std::uint32_t type() const override { return part_new_paragraph; }
  new_paragraph* clone() const override { return new new_paragraph(*this); }
};

/// A field of the entity.
struct SCRIBE_EXPORT field : part {
  /// The text between the markers "%<" and ">%", as found.
  std::u16string code;
  /// The evaluated text, when a field object was bound.
  std::optional<std::u16string> value;

  field(mtext::format::string f, std::u16string c) : part(std::move(f)), code(std::move(c)) {}
  std::uint32_t type() const override { return part_field; }
  field* clone() const override { return new field(*this); }
  /// "%<code>%": the field as it stands in a string, and the key under which its object is looked up.
  std::u16string marker() const { return u"%<" + code + u">%"; }
};

/// How owning containers copy their parts.
inline part* new_clone(const part& p) { return p.clone(); }

}  // namespace mtext
