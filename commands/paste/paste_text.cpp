#include "commands/paste/paste_text.h"

#include <cmath>

#include "commands/paste/paste_tracker.h"
#include "commands/paste/text_orientation.h"
#include "editor/current_space.h"
#include "host/application.h"
#include "host/clipboard.h"
#include "host/document.h"
#include "host/exports.h"
#include "host/prompt.h"
#include "host/translate.h"
#include "mtext/escape.h"
#include "od/db/OdDbDatabase.h"
#include "od/db/OdDbTextStyleTableRecord.h"

namespace {

constexpr int kOwnFormatName = 1031;
constexpr int kOriginPrompt = 1017;
constexpr int kCornerPrompt = 1033;
constexpr double kNoSize = 1e-10;
constexpr double kUsualSize = 2.5;

/// Number of the format that a session copies; registered once.
unsigned own_format(HostClipboard& board) {
  return board.registerFormat(host::resource_string(kOwnFormatName));
}

/// Size of a new text: that of the current style, else TEXTSIZE.
double size_for(OdDbDatabase& database, OdDbObjectId style) {
  const double fixed =
      style ? odCastOrThrow<OdDbTextStyleTableRecord>(style.safeOpenObject())->textSize() : 0;
  return std::abs(fixed) > kNoSize ? fixed : database.getSysVarDouble(u"TEXTSIZE", kUsualSize);
}

/// A text that is being pasted; one of the pointers is null.
struct pasted_text {
  OdDbMTextPtr text;
  OdDbTextPtr line;

  OdDbEntity& entity() const { return text ? static_cast<OdDbEntity&>(*text) : *line; }
};

pasted_text new_mtext(OdDbDatabase& database, const text_orientation& lies, const OdString& contents) {
  const OdDbObjectId style = database.getTEXTSTYLE();
  auto text = odNew<OdDbMText>();
  text->setDatabaseDefaults(&database);
  text->setTextHeight(size_for(database, style));
  text->setNormal(lies.normal);
  text->setDirection(
      (OdGeMatrix3d::planeToWorld(lies.normal) * OdGeVector3d::kXAxis).rotatedBy(lies.rotation, lies.normal));
  if (style) text->setTextStyle(style);
  text->setContents(contents);
  return {text, {}};
}

/// It deliberately gets no rotation and none of the drawing's defaults.
pasted_text new_line(OdDbDatabase& database, const text_orientation& lies, const OdString& characters) {
  const OdDbObjectId style = database.getTEXTSTYLE();
  auto line = odNew<OdDbText>();
  line->setHeight(size_for(database, style));
  line->setNormal(lies.normal);
  if (style) line->setTextStyle(style);
  line->setTextString(characters);
  return {{}, line};
}

}  // namespace

void DoPasteContents(const std::u16string& text, bool formatted, bool multiline) {
  HostDocument* document = host::active_document();
  if (!document) return;
  OdDbDatabase& database = document->database();
  const text_orientation lies = getTextOrientation(database);
  const bool is_mtext = formatted || multiline;
  const pasted_text pasted =
      !is_mtext ? new_line(database, lies, text)
                : new_mtext(database, lies,
                            formatted ? text : mtext::escape_mtext(text.c_str(), /*keep_line_feeds=*/true));
  PasteTracker tracker(pasted.text, pasted.line, lies.normal, database);
  tracker.setPoint({});
  OdGePoint3d at;
  const HostPromptRequest request{.prompt = host::resource_string(is_mtext ? kCornerPrompt : kOriginPrompt),
                                  .tracker = &tracker};
  if (document->prompt().getPoint(request, at) != kAnswerValue) return;
  tracker.setPoint(at);
  hostEntUpd(editing::open_current_space(database)->appendOdDbEntity(&pasted.entity()));
}

bool PasteText(bool check_only) {
  HostApplication* application = host::application();
  if (!application || !application->activeDocument()) return false;
  HostClipboard& board = application->clipboard();
  const unsigned own = own_format(board);
  if (!board.has(CF_UNICODETEXT) && !(own != 0 && board.has(own))) return false;
  if (check_only) return true;
  if (const auto codes = own != 0 ? board.get(own) : std::nullopt) {
    DoPasteContents(*codes, /*formatted=*/true, /*multiline=*/true);
  } else if (const auto plain = board.get(CF_UNICODETEXT)) {
    DoPasteContents(*plain, /*formatted=*/false, plain->find(u'\n') != plain->npos);
  }
  return true;
}
