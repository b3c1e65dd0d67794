#include "tests/conformance/session_subject.h"

#include "desk/text_json/format_json.h"
#include "desk/text_json/multitext_json.h"
#include "od/db/OdDbDatabase.h"
#include "tests/conformance/dictionary_json.h"
#include "tests/conformance/geom_json.h"
#include "tests/mtext/stub_finder.h"

namespace conformance {

namespace {

/// One application serves all requests: a session leaves nothing in it but the clipboard.
WindowlessApplication& application() {
  static WindowlessApplication instance(OdDbDatabase::createEmpty());
  return instance;
}

}  // namespace

session_subject::session_subject(const json& in) : m_session(application().document()) {
  application().clipboard().empty();
  text().setFinder(std::make_shared<mtext::stub_finder>());
  const mtext::convert_info info = read_info(object_member(in, "info"));
  text().setLayoutInfo(info);
  text().setSize(info.columns.width, info.columns.heights[0]);
  text().setDefaultFormat(read_format(object_member(in, "base")));
  const std::u16string contents = text_member(in, "contents");
  text().setContents(contents, read_fields(object_member(in, "fields")));
  text().setLetters(read_dictionary(in));
  text().load();
  m_session.beginPlain(member_or(in, "single_line", false), !contents.empty());
}

void session_subject::hold_keys(const json& in) {
  application().keyState().hold({.shift = member_or(in, "shift", false),
                                 .ctrl = member_or(in, "ctrl", false),
                                 .alt = member_or(in, "alt", false)});
}

HostMemoryClipboard& session_subject::clipboard() { return application().clipboard(); }

OdGsView& session_subject::view() { return application().document().view().gsView(); }

const std::string& session_subject::ended() {
  if (const auto typed = application().document().commandInput().take())
    m_ended = std::holds_alternative<HostCancel>(*typed) ? "cancel" : "accept";
  return m_ended;
}

}  // namespace conformance
