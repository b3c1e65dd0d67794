#include "desk/text_json/multitext_json.h"

#include <ostream>
#include <stdexcept>
#include <string_view>
#include <utility>

#include "desk/text_json/format_json.h"

namespace text_json {

namespace {

std::unique_ptr<mtext::part> read_field(const json& value, mtext::format::string format) {
  auto field = std::make_unique<mtext::field>(std::move(format), text_member(value, "code"));
  auto evaluated = value.find("value");
  if (evaluated != value.end() && !evaluated->is_null()) field->value = read_text(*evaluated);
  return field;
}

void write_members(json& value, const mtext::string& part) { value["text"] = write_text(part.text); }

void write_members(json& value, const mtext::spaces& part) { value["count"] = part.count; }

void write_members(json& value, const mtext::stack& part) {
  value["numerator"] = write_text(part.numerator);
  value["denominator"] = write_text(part.denominator);
  value["kind"] = part.kind;
}

void write_members(json& value, const mtext::new_paragraph& part) {
  value["paragraph"] = write_paragraph(part.paragraph);
  value["column_break"] = part.column_break;
}

void write_members(json& value, const mtext::field& part) {
  value["code"] = write_text(part.code);
  value["value"] = part.value ? write_text(*part.value) : json();
}

/// A part without its format.
json own_members(const mtext::part& part) {
  json value = {{"type", part.type()}};
  switch (part.type()) {
    case mtext::part_string:
      write_members(value, static_cast<const mtext::string&>(part));
      break;
    case mtext::part_spaces:
      write_members(value, static_cast<const mtext::spaces&>(part));
      break;
    case mtext::part_stack:
      write_members(value, static_cast<const mtext::stack&>(part));
      break;
    case mtext::part_new_paragraph:
      write_members(value, static_cast<const mtext::new_paragraph&>(part));
      break;
    case mtext::part_field:
      write_members(value, static_cast<const mtext::field&>(part));
      break;
    default:
      break;
  }
  return value;
}

/// Equal in every digit, where formats that are nearly equal count as equal elsewhere.
bool same(const mtext::format::string& a, const mtext::format::string& b) {
  return a == b && a.height == b.height;
}

/// Keeps a format and its words.
class format_words {
 public:
  const std::string& of(const mtext::format::string& format) {
    if (m_words.empty() || !same(m_format, format)) {
      m_format = format;
      m_words = write_format(format).dump();
    }
    return m_words;
  }

 private:
  mtext::format::string m_format;
  std::string m_words;
};

}  // namespace

std::unique_ptr<mtext::part> read_part(const json& value) {
  auto format = read_format(object_member(value, "format"));
  switch (value.at("type").get<std::uint32_t>()) {
    case mtext::part_string:
      return std::make_unique<mtext::string>(format, text_member(value, "text"));
    case mtext::part_spaces:
      return std::make_unique<mtext::spaces>(format, member_or(value, "count", std::uint32_t{1}));
    case mtext::part_tab:
      return std::make_unique<mtext::tab>(format);
    case mtext::part_new_line:
      return std::make_unique<mtext::new_line>(format);
    case mtext::part_stack:
      return std::make_unique<mtext::stack>(format, text_member(value, "numerator"),
                                            text_member(value, "denominator"),
                                            member_or(value, "kind", std::uint32_t{0}));
    case mtext::part_new_paragraph:
      return std::make_unique<mtext::new_paragraph>(read_paragraph(object_member(value, "paragraph")), format,
                                                    member_or(value, "column_break", false));
    case mtext::part_field:
      return read_field(value, format);
    default:
      throw std::runtime_error("part: unknown type");
  }
}

json write_part(const mtext::part& part) {
  json value = own_members(part);
  value["format"] = write_format(part.format);
  return value;
}

mtext::multitext read_multitext(const json& value) {
  mtext::multitext text;
  text.paragraph = read_paragraph(object_member(value, "paragraph"));
  for (const auto& part : object_member(value, "parts")) text.parts.push_back(read_part(part).release());
  return text;
}

json write_multitext(const mtext::multitext& text) {
  json parts = json::array();
  for (const auto& part : text.parts) parts.push_back(write_part(part));
  return {{"paragraph", write_paragraph(text.paragraph)}, {"parts", std::move(parts)}};
}

void print_multitext(std::ostream& out, const mtext::multitext& text) {
  out << "{\"paragraph\":" << write_paragraph(text.paragraph) << ",\"parts\":[";
  format_words formats;
  const char* separator = "";
  for (const auto& part : text.parts) {
    const std::string members = own_members(part).dump();
    out << separator << "{\"format\":" << formats.of(part.format) << ','
        << std::string_view(members).substr(1);
    separator = ",";
  }
  out << "]}";
}

mtext::fields_map read_fields(const json& value) {
  mtext::fields_map fields;
  for (const auto& [marker, evaluated] : value.items()) {
    OdDbFieldPtr field(new OdDbField(u"", u""), kOdRxObjAttach);
    field->setEvaluatedText(read_text(evaluated));
    fields.emplace(read_text(marker), field);
  }
  return fields;
}

}  // namespace text_json
