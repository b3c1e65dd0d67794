#include "mtext/to_geom.h"

#include <memory>
#include <utility>
#include <vector>

#include "mtext/surrogate_pair.h"

namespace mtext {
namespace {

/// What a field shows that has no value.
constexpr char16_t unknown_value[] = u"----";

/// The height in drawing units that a format means.
double effective_height(const format::string& format, double height) {
  if (format.height_kind == 0) return format.height;
  return format.height_kind == 1 ? height * format.height : height;
}

format::tab_list scaled(const format::tab_list& tabs, double factor) {
  std::vector<format::tab_stop> stops = tabs;
  for (format::tab_stop& stop : stops) stop.position *= factor;
  return stops;
}

/// Makes paragraphs relative, one after the other. Those that share their stops share the scaled ones too.
class relative_paragraphs {
 public:
  void add(format::paragraph& paragraph, double height) {
    if (paragraph.relative) return;
    const format::tab_list given = std::exchange(paragraph.tabs, {});
    make_relative(paragraph, height);
    if (!given.is_shared_with(m_given) || height != m_height) {
      m_given = given;
      m_height = height;
      m_scaled = scaled(given, 1 / height);
    }
    paragraph.tabs = m_scaled;
  }

 private:
  format::tab_list m_given;
  format::tab_list m_scaled;
  double m_height = 0;  ///< by which `m_given` became `m_scaled`
};

/// Adds elements to a text, measured one by one.
class unroller {
 public:
  unroller(geom_multitext& target, double height, const string_size_finder& finder)
      : m_target(target), m_height(height), m_finder(finder) {}

  /// Gives the text the format of its first paragraph.
  void open(const format::paragraph& first) {
    m_target.format = first;
    m_relative.add(m_target.format, m_height);
  }

  void add(const part& source) {
    switch (source.type()) {
      case part_string:
        return add_string(static_cast<const string&>(source));
      case part_spaces:
        return add_spaces(static_cast<const spaces&>(source));
      case part_tab:
        return push<geom_tab>(tab(resolved(source)));
      case part_new_line:
        return push<geom_new_line>(new_line(resolved(source)));
      case part_stack:
        return add_stack(static_cast<const stack&>(source));
      case part_new_paragraph:
        return add_paragraph(static_cast<const new_paragraph&>(source));
      case part_field:
        return add_field(static_cast<const field&>(source));
    }
  }

  void add(char16_t character, const format::string& format) {
    switch (character) {
      case u'\t':
        return add(tab(format));
      case u'\n':
        return add(new_line(format));
      case u'\r':
        return;
      case u' ':
        return add(spaces(format, 1));
      default:
        return add(string(format, std::u16string(1, character)));
    }
  }

 private:
  format::string resolved(const part& source) const {
    format::string format = source.format;
    format.height = effective_height(format, m_height);
    format.height_kind = 0;
    return format;
  }

  template <class Element, class Logical>
  void push(Logical logical) {
    auto element = std::make_unique<Element>(std::move(logical));
    element->update(m_finder);
    m_target.parts.push_back(element.release());
  }

  void add_words(std::u16string_view text, const format::string& format) {
    for (char16_t each : text) {
      push<geom_word>(string(format, std::u16string(1, each)));
      if (is_low_half(each)) measure_pair(m_target.parts, m_target.parts.size() - 1, m_finder);
    }
  }

  void add_string(const string& source) { add_words(source.text, resolved(source)); }

  void add_spaces(const spaces& source) {
    const format::string format = resolved(source);
    for (std::uint32_t i = 0; i < source.count; ++i) push<geom_spaces>(spaces(format, 1));
  }

  void add_stack(const stack& source) {
    push<geom_stack>(stack(resolved(source), source.numerator, source.denominator, source.kind));
  }

  void add_paragraph(const new_paragraph& source) {
    new_paragraph copy(source.paragraph, resolved(source), source.column_break);
    m_relative.add(copy.paragraph, copy.format.height);
    push<geom_new_paragraph>(std::move(copy));
  }

  void add_field(const field& source) {
    const std::size_t begin = m_target.parts.size();
    add_words(source.value ? std::u16string_view(*source.value) : unknown_value, resolved(source));
    m_target.marks.push_back(new marks::field(begin, m_target.parts.size(), source.code));
  }

  geom_multitext& m_target;
  double m_height;
  const string_size_finder& m_finder;
  relative_paragraphs m_relative;
};

}  // namespace

void make_relative(format::paragraph& paragraph, double height) {
  if (paragraph.relative) return;
  paragraph.relative = true;
  const double factor = 1 / height;
  paragraph.indent *= factor;
  paragraph.left *= factor;
  paragraph.right *= factor;
  paragraph.before *= factor;
  paragraph.after *= factor;
  paragraph.tabs = scaled(paragraph.tabs, factor);
}

geom_multitext to_geom(const multitext& text, double height, const string_size_finder& finder) {
  geom_multitext result;
  unroller unrolled(result, height, finder);
  unrolled.open(text.paragraph);
  for (const part& each : text.parts) unrolled.add(each);
  return result;
}

geom_multitext to_geom(const part& part, double height, const string_size_finder& finder) {
  geom_multitext result;
  unroller(result, height, finder).add(part);
  return result;
}

geom_multitext to_geom(std::u16string_view text, const format::string& format, double height,
                       const string_size_finder& finder) {
  geom_multitext result;
  unroller unrolled(result, height, finder);
  for (char16_t each : text) unrolled.add(each, format);
  return result;
}

geom_multitext to_geom(char16_t character, const format::string& format, double height,
                       const string_size_finder& finder) {
  return to_geom(std::u16string_view(&character, 1), format, height, finder);
}

}  // namespace mtext
