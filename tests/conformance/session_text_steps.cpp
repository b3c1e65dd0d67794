#include <map>

#include "desk/text_json/format_json.h"
#include "mtext/flatten.h"
#include "mtext/serialize.h"
#include "tests/conformance/session_subject.h"

// The steps that the toolbar and the command make, and the questions.

namespace conformance {
namespace {

json select(session_subject& subject, const json& in) {
  std::vector<mtext::marks::selection> selections;
  for (const json& each : in.at("selections")) {
    mtext::marks::selection selection(each.at(0), each.at(1));
    selection.caret_at_begin = each.at(2);
    selections.push_back(selection);
  }
  subject.text().setSelections(selections);
  return nullptr;
}

json apply_format(session_subject& subject, const json& in) {
  subject.text().applyFormat(read_string_partial(in.at("partial")));
  return nullptr;
}

json apply_paragraph(session_subject& subject, const json& in) {
  subject.text().applyParagraph(read_paragraph_partial(in.at("partial")));
  return nullptr;
}

json insert_text(session_subject& subject, const json& in) {
  subject.text().insertText(text_member(in, "text"));
  return nullptr;
}

json stack_selection(session_subject& subject, const json&) {
  subject.text().stackSelection();
  return nullptr;
}

json superscript(session_subject& subject, const json&) {
  subject.text().superscript();
  return nullptr;
}

json subscript(session_subject& subject, const json&) {
  subject.text().subscript();
  return nullptr;
}

json set_numbering(session_subject& subject, const json& in) {
  subject.text().setNumbering(in.at("kind"), in.at("start"));
  return nullptr;
}

json set_attachment(session_subject& subject, const json& in) {
  subject.text().setAttachment(in.at("attachment"));
  return nullptr;
}

json push_undo_step(session_subject& subject, const json& in) {
  subject.session().pushUndoStep(in.at("kind"));
  return nullptr;
}

json copy(session_subject& subject, const json&) {
  subject.text().copy();
  return nullptr;
}

json cut(session_subject& subject, const json&) {
  subject.text().cut();
  return nullptr;
}

json paste(session_subject& subject, const json& in) {
  if (in.contains("plain")) {
    subject.clipboard().empty();
    subject.clipboard().set(CF_UNICODETEXT, text_member(in, "plain"));
  }
  subject.text().paste(subject.session().isSingleLine(), subject.session().editsExistingLine());
  return nullptr;
}

json caret_points(session_subject& subject, const json& in) {
  OdGePoint2d top, bottom;
  const std::size_t index = in.at("selection");
  subject.text().caretPoints(subject.text().selections().at(index), top, bottom);
  return {{"top", {top.x, top.y}}, {"bottom", {bottom.x, bottom.y}}};
}

json state(session_subject& subject, const json&) {
  json selections = json::array();
  for (const auto& each : subject.text().selections())
    selections.push_back({each.begin, each.end, each.caret_at_begin, each.at_line_end});
  const undo_stack& undo = subject.session().undo();
  const auto plain = mtext::serialize_raw(mtext::flatten(subject.text().text()), /*tilde_spaces=*/false);
  return {{"contents", write_text(subject.text().contentsText().str())},
          {"plain", write_text(plain)},
          {"selections", selections},
          {"undo", undo.undo_count()},
          {"redo", undo.redo_count()},
          {"run", undo.run_kind()},
          {"ended", subject.ended()}};
}

}  // namespace

session_step find_text_step(const std::string& name) {
  static const std::map<std::string, session_step> steps{{"select", select},
                                                         {"apply_format", apply_format},
                                                         {"apply_paragraph", apply_paragraph},
                                                         {"insert_text", insert_text},
                                                         {"stack_selection", stack_selection},
                                                         {"superscript", superscript},
                                                         {"subscript", subscript},
                                                         {"set_numbering", set_numbering},
                                                         {"set_attachment", set_attachment},
                                                         {"push_undo_step", push_undo_step},
                                                         {"copy", copy},
                                                         {"cut", cut},
                                                         {"paste", paste},
                                                         {"caret_points", caret_points},
                                                         {"state", state}};
  const auto found = steps.find(name);
  return found == steps.end() ? nullptr : found->second;
}

}  // namespace conformance
