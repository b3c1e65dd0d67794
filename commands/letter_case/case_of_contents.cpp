#include "commands/letter_case/case_of_contents.h"

#include "mtext/mark_sweep.h"
#include "mtext/numbering.h"
#include "mtext/parse.h"
#include "mtext/serialize.h"
#include "mtext/to_geom.h"

namespace {

namespace format = mtext::format;

/// What is written anew, part by part.
class contents_writer {
 public:
  contents_writer(const format::paragraph& paragraph, double height) : m_paragraph(paragraph) {
    m_base.height = height;
    m_current = m_base;
    mtext::serialize(m_out, kBaseHeight, m_paragraph, m_px_written);
  }

  void write(const mtext::part& part) {
    mtext::serialize(m_out, kBaseHeight, m_paragraph, m_base, m_current, m_state, part, m_px_written,
                     /*plain_spaces=*/false);
  }

  std::u16string finished() {
    mtext::serialize(m_out, m_state);
    return std::move(m_out);
  }

 private:
  /// Paragraph lengths are written as they were read, or as layout made them multiples of the height.
  static constexpr double kBaseHeight = 1.0;

  std::u16string m_out;
  format::paragraph m_paragraph;
  format::string m_base;
  format::string m_current;
  mtext::serialize_state m_state;
  bool m_px_written = false;
};

/// Maps the letters of one part; whatever has none counts as a blank.
void change_case(mtext::part& part, case_state& state) {
  if (part.type() == mtext::part_string) {
    auto& text = static_cast<mtext::string&>(part).text;
    text = in_case(text, state);
  } else if (part.type() == mtext::part_stack) {
    auto& stack = static_cast<mtext::stack&>(part);
    stack.numerator = in_case(stack.numerator, state);
    stack.denominator = in_case(stack.denominator, state);
  } else {
    in_case(u' ', state);
  }
}

mtext::multitext parts_of(const std::u16string& contents) {
  mtext::multitext read;
  mtext::parse(contents, format::string(), read, mtext::fields_map());
  return read;
}

}  // namespace

std::u16string case_of_contents(const std::u16string& contents, double height, case_mode mode,
                                const mtext::string_size_finder& finder,
                                const mtext::marks::letters_dictionary& letters) {
  const mtext::multitext read = parts_of(contents);
  mtext::geom_multitext text = mtext::to_geom(read, height, finder);
  mtext::mark_numberings(text, letters);
  mtext::marks::mark_sweep<mtext::marks::field> fields(text.marks);
  mtext::marks::mark_sweep<mtext::marks::numbering> labels(text.marks);
  contents_writer writer(read.paragraph, height);
  case_state state(mode);
  for (std::size_t at = 0; at < text.parts.size();) {
    mtext::part& part = text.parts[at].part();
    if (const mtext::marks::field* field = fields.at(at)) {
      in_case(u' ', state);
      writer.write(mtext::field(part.format, field->code));
      at = field->end;
      continue;
    }
    if (labels.at(at)) {
      in_case(u'.', state);  // an item opens a sentence
    } else {
      change_case(part, state);
    }
    writer.write(part);
    ++at;
  }
  return writer.finished();
}
