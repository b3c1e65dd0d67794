#include "editor/editable.h"
#include "od/db/OdDbDwgFiler.h"
#include "od/db/OdDbDxfFiler.h"

namespace {

constexpr int kContentsCode = 71;
constexpr int kHeightCode = 74;
constexpr const char* kSubclass = "ExMTextEditable";

}  // namespace

OdResult ExMTextEditable::dwgInFields(OdDbDwgFiler* filer) {
  const OdString contents = filer->rdString();
  setTextHeight(filer->rdDouble(), /*keep_runs=*/true);
  setContents(contents);
  load();
  return eOk;
}

void ExMTextEditable::dwgOutFields(OdDbDwgFiler* filer) const {
  filer->wrString(contentsText());
  filer->wrDouble(textHeight());
}

OdResult ExMTextEditable::dxfInFields(OdDbDxfFiler* filer) {
  if (!filer->atSubclassData(kSubclass)) return eMakeMeProxy;
  OdString contents;
  while (!filer->atEndOfObject()) {
    const int code = filer->nextItem();
    if (code == kContentsCode) contents = filer->rdString();
    if (code == kHeightCode) setTextHeight(filer->rdDouble(), /*keep_runs=*/true);
  }
  setContents(contents);
  load();
  return eOk;
}

void ExMTextEditable::dxfOutFields(OdDbDxfFiler* filer) const {
  filer->wrSubclassMarker(kSubclass);
  filer->wrString(kContentsCode, contentsText());
  filer->wrDouble(kHeightCode, textHeight());
}
