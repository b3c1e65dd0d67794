#include "od/db/mtext_background.h"

#include "od/db/OdDbMText.h"
#include "od/db/mtext_subclass.h"
#include "od/db/mtext_xdata.h"

namespace {

using Xdata = OdDbMTextXdata;

OdDbMTextBackground readGroups(const OdDbGroups& text) {
  OdDbMTextBackground background;
  background.bits = text.integer(90, 0);
  background.scale = text.real(45, 1.5);
  if (text.has(421))
    background.color =
        OdCmEntityColor::fromRaw(0xC2000000u | (static_cast<unsigned>(text.integer(421, 0)) & 0xFFFFFFu));
  else if (text.has(63))
    background.color = OdCmEntityColor::fromIndex(text.integer(63, 7));
  return background;
}

OdDbMTextBackground readXdata(const dxf::Record& record) {
  OdDbMTextBackground background;
  background.bits = static_cast<int>(Xdata::integer(record, Xdata::kBackground, 91, 0));
  background.scale = Xdata::real(record, Xdata::kBackground, 46, 1.5);
  const auto raw = static_cast<std::uint32_t>(Xdata::integer(record, Xdata::kBackground, 64, 0));
  if (raw != 0) background.color = OdCmEntityColor::fromRaw(raw);
  return background;
}

void writeXdata(dxf::Record& record, const OdDbMTextBackground& background) {
  Xdata::write(record, Xdata::kBackground,
               {{91, std::int64_t{background.bits}},
                {46, background.scale},
                {64, std::int64_t{static_cast<std::int32_t>(background.color.raw())}},
                {65, std::u16string()},
                {66, std::u16string()},
                {442, std::int64_t{0}}});
}

void writeGroups(dxf::Record& record, const OdDbMTextBackground& background) {
  OdDbGroupEditor text(record, odMTextSubclass(), nullptr);
  text.setInteger(90, background.bits, 0);
  if ((background.bits & OdDbMTextBackground::kFill) == 0) {
    for (const int code : {63, 421, 431, 45, 441}) text.remove(code);
    return;
  }
  text.setInteger(63, background.color.colorIndex());
  if (background.color.isByColor())
    text.setInteger(421, background.color.trueColor());
  else
    text.remove(421);
  text.setReal(45, background.scale);
  if (!text.has(441)) text.setInteger(441, 0);
}

}  // namespace

OdDbMTextBackground OdDbMTextBackground::read(const dxf::Record& record) {
  const OdDbGroups text(record, odMTextSubclass());
  return text.has(90) || !Xdata::find(record, Xdata::kBackground) ? readGroups(text) : readXdata(record);
}

void OdDbMTextBackground::write(dxf::Record& record) const {
  if (read(record) == *this) return;
  if (record.manner().version < dxf::R2004)
    writeXdata(record, *this);
  else
    writeGroups(record, *this);
}

OdDbMTextBackground OdDbMText::background() const {
  assertReadEnabled();
  return OdDbMTextBackground::read(record());
}

void OdDbMText::setBackground(const OdDbMTextBackground& background) {
  assertWriteEnabled();
  if (background == OdDbMTextBackground::read(record())) return;
  background.write(record());
  touch();
}

bool OdDbMText::backgroundFill() const { return background().bits & OdDbMTextBackground::kFill; }

void OdDbMText::setBackgroundFill(bool on) {
  OdDbMTextBackground changed = background();
  changed.bits = on ? changed.bits | OdDbMTextBackground::kFill
                    : changed.bits & ~(OdDbMTextBackground::kFill | OdDbMTextBackground::kUseDrawing);
  setBackground(changed);
}

OdCmColor OdDbMText::getBackgroundFillColor() const { return background().color; }

void OdDbMText::setBackgroundFillColor(const OdCmEntityColor& color) {
  OdDbMTextBackground changed = background();
  changed.color = color;
  setBackground(changed);
}

bool OdDbMText::isBackgroundColorUsed() const { return background().bits & OdDbMTextBackground::kUseDrawing; }

void OdDbMText::setUseBackgroundColor(bool on) {
  OdDbMTextBackground changed = background();
  changed.bits = on ? changed.bits | OdDbMTextBackground::kUseDrawing | OdDbMTextBackground::kFill
                    : changed.bits & ~OdDbMTextBackground::kUseDrawing;
  setBackground(changed);
}

double OdDbMText::getBackgroundScaleFactor() const { return background().scale; }

void OdDbMText::setBackgroundScaleFactor(double factor) {
  OdDbMTextBackground changed = background();
  changed.scale = factor;
  setBackground(changed);
}

bool OdDbMText::showBorders() const { return background().bits & OdDbMTextBackground::kFrame; }
