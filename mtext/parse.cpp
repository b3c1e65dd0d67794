#include "mtext/parse.h"

#include <algorithm>

#include "mtext/parse_state.h"

namespace mtext {

namespace reading {

/// One token of the text. Groups are opened and closed here without a call of their own: what a group is made
/// of does not depend on how deep it stands, and depth must not cost stack.
bool parse_state::read_token() {
  if (cursor.accept(u'{')) {
    formats.open_group();
  } else if (cursor.accept(u'}')) {
    // Without a partner it is dropped, and nothing closes.
    formats.close_group();
  } else if (!read_code() && !read_field()) {
    bool read = read_literal();
    start_new = false;
    return read;
  }
  start_new = true;
  return true;
}

void parse_state::run() {
  while (read_token()) {
  }
}

}  // namespace reading

namespace {

new_paragraph* as_paragraph(part& p) {
  return p.type() == part_new_paragraph ? static_cast<new_paragraph*>(&p) : nullptr;
}

bool is_relative_paragraph(part& p) {
  auto* begun = as_paragraph(p);
  return begun && begun->paragraph.relative;
}

/// A `\px` behind the first paragraph marks all paragraphs but the first; no length is converted.
void spread_relative(multitext& text) {
  if (text.paragraph.relative) return;
  if (std::none_of(text.parts.begin(), text.parts.end(), is_relative_paragraph)) return;
  for (auto& part : text.parts) {
    if (auto* begun = as_paragraph(part)) begun->paragraph.relative = true;
  }
}

void bind_fields(multitext& text, const fields_map& fields) {
  if (fields.empty()) return;
  for (auto& part : text.parts) {
    if (part.type() != part_field) continue;
    auto& read = static_cast<field&>(part);
    auto bound = fields.find(read.marker());
    if (bound != fields.end()) read.value = bound->second->getFieldCode(OdDbField::kEvaluatedText).str();
  }
}

}  // namespace

bool parse(const char16_t* first, const char16_t* last, const format::string& base, multitext& target,
           const fields_map& fields) {
  reading::parse_state(first, last, base, target).run();
  spread_relative(target);
  bind_fields(target, fields);
  return true;
}

bool parse(const char16_t* text, const format::string& base, multitext& target, const fields_map& fields) {
  bool result = parse(text, text + std::char_traits<char16_t>::length(text), base, target, fields);
  join_equal_parts(target);
  return result;
}

bool parse(const std::u16string& text, const format::string& base, multitext& target,
           const fields_map& fields) {
  return parse(text.c_str(), base, target, fields);
}

}  // namespace mtext
