#include "desk/window/virtual_key.h"

#include <QKeyEvent>
#include <array>

namespace {

struct KeyRow {
  int qtKey;
  int virtualKey;
};

constexpr std::array<KeyRow, 33> kKeys{{
    {Qt::Key_Backspace, 8}, {Qt::Key_Tab, 9},       {Qt::Key_Backtab, 9},      {Qt::Key_Return, 13},
    {Qt::Key_Enter, 13},    {Qt::Key_Shift, 16},    {Qt::Key_Control, 17},     {Qt::Key_Alt, 18},
    {Qt::Key_AltGr, 18},    {Qt::Key_Pause, 19},    {Qt::Key_CapsLock, 20},    {Qt::Key_Escape, 27},
    {Qt::Key_Space, 32},    {Qt::Key_PageUp, 33},   {Qt::Key_PageDown, 34},    {Qt::Key_End, 35},
    {Qt::Key_Home, 36},     {Qt::Key_Left, 37},     {Qt::Key_Up, 38},          {Qt::Key_Right, 39},
    {Qt::Key_Down, 40},     {Qt::Key_Print, 44},    {Qt::Key_Insert, 45},      {Qt::Key_Delete, 46},
    {Qt::Key_Menu, 93},     {Qt::Key_NumLock, 144}, {Qt::Key_ScrollLock, 145}, {Qt::Key_Semicolon, 186},
    {Qt::Key_Equal, 187},   {Qt::Key_Plus, 187},    {Qt::Key_Comma, 188},      {Qt::Key_Minus, 189},
    {Qt::Key_Period, 190},
}};

constexpr int kFirstFunctionKey = 112;
constexpr int kComposedKey = 231;

}  // namespace

int virtualKeyOf(const QKeyEvent& event) {
  const int key = event.key();
  if ((key >= Qt::Key_A && key <= Qt::Key_Z) || (key >= Qt::Key_0 && key <= Qt::Key_9)) return key;
  if (key >= Qt::Key_F1 && key <= Qt::Key_F24) return kFirstFunctionKey + key - Qt::Key_F1;
  for (const KeyRow& row : kKeys)
    if (row.qtKey == key) return row.virtualKey;
  return kComposedKey;
}
