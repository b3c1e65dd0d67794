#include "ui/toolbar/numbering_menu.h"

#include <algorithm>

#include "editor/smart_edit.h"
#include "ui/toolbar/CMTextEdit.h"
#include "ui/toolbar/selection_facts.h"

namespace toolbar {
namespace {

constexpr int kMenu = 145;
constexpr int kButton = 1049;

enum numbering_command : int {
  kOff = 1023,
  kNumbered = 1025,
  kUppercase = 1026,
  kLowercase = 1027,
  kBulleted = 1028,
  kRestart = 1029,
  kContinue = 1030,
  kFirstBullet = 2001,
};

enum label_kind : int { kPlain = -1, kNumber = 0, kLower = 1, kUpper = 2, kBullet = 3 };

/// Places in the menu once "Restart" and "Continue" are out of it.
constexpr std::size_t kLetteredPlace = 1;
constexpr std::size_t kBulletsPlace = 4;

constexpr const char16_t* kBullets[] = {u"\u00B7"};

struct menu_row {
  int command;
  label_kind kind;
};
constexpr menu_row kRows[] = {
    {kOff, kPlain}, {kNumbered, kNumber}, {kUppercase, kUpper}, {kLowercase, kLower}, {kBulleted, kBullet}};

/// What all touched paragraphs are; nothing if they are of several kinds.
std::optional<label_kind> kind_of(const list_facts& lists) {
  if (!lists.any) return kPlain;
  if (!lists.common) return {};
  return static_cast<label_kind>(lists.common->kind);
}

HostMenuItem bullets_row(const std::u16string& text, bool checked) {
  HostMenuItem opened;
  opened.text = text;
  for (const char16_t* bullet : kBullets) {
    HostMenuItem& row = opened.rows.emplace_back();
    row.command = kFirstBullet + static_cast<int>(opened.rows.size()) - 1;
    row.text = bullet;
    row.checked = checked;
    row.radio = true;
  }
  return opened;
}

void check(HostMenu& menu, label_kind kind) {
  host::change_rows(menu, [kind](HostMenuItem& row) {
    const auto found = std::find_if(std::begin(kRows), std::end(kRows),
                                    [&row](const menu_row& each) { return each.command == row.command; });
    row.radio = found != std::end(kRows);
    row.checked = row.radio && found->kind == kind;
  });
  menu[kLetteredPlace].radio = true;
  menu[kLetteredPlace].checked = kind == kLower || kind == kUpper;
}

/// The kind that a command asks for.
std::optional<label_kind> kind_of(int command) {
  const auto found = std::find_if(std::begin(kRows), std::end(kRows),
                                  [command](const menu_row& each) { return each.command == command; });
  if (found != std::end(kRows)) return found->kind;
  const bool is_bullet =
      command >= kFirstBullet && command < kFirstBullet + static_cast<int>(std::size(kBullets));
  return is_bullet ? std::optional(kBullet) : std::nullopt;
}

}  // namespace

std::span<const char16_t* const> bullets() { return kBullets; }

HostMenu numbering_menu(const ExMTextEditable& text) {
  HostMenu menu = host::resource_menu(kMenu)[0].rows;
  // Lists are counted by the text itself.
  host::remove_rows(
      menu, [](const HostMenuItem& row) { return row.command == kRestart || row.command == kContinue; });
  const auto kind = kind_of(lists_of(text));
  if (kind) check(menu, *kind);
  menu[kBulletsPlace] = bullets_row(menu[kBulletsPlace].text, kind == kBullet);
  return menu;
}

std::optional<text_change> ask_numbering(CMTextEdit& bar) {
  ExMTextEditable& text = bar.editable();
  const auto kind = kind_of(bar.choose(numbering_menu(text), kButton));
  if (!kind) return {};
  // Letters of another case are those of the same alphabet.
  const auto level = lists_of(text).common;
  const std::size_t alphabet = level ? level->alphabet : 0;
  return text_change{[&text, kind = *kind, alphabet] { text.setNumbering(kind, alphabet); }, kUndoMenu};
}

}  // namespace toolbar
