#include "mtext/parse_tabs.h"

#include "mtext/parse_number.h"

namespace mtext::reading {

namespace {

using format::tab_stop;

/// The letters before the position; nothing when the input ends at a `D`. The position is left at 0.
std::optional<tab_stop> read_kind(text_cursor& cursor) {
  tab_stop stop;
  if (cursor.accept(u'c')) {
    stop.kind = 1;
  } else if (cursor.accept(u'r')) {
    stop.kind = 2;
  } else if (cursor.accept(u'D')) {
    if (cursor.ended()) return std::nullopt;
    stop.kind = 3;
    stop.decimal_char = *cursor.at++;
  }
  return stop;
}

std::optional<tab_stop> read_stop(text_cursor& cursor) {
  auto stop = read_kind(cursor);
  if (!stop) return std::nullopt;
  auto position = read_number(cursor);
  if (!position) return std::nullopt;
  stop->position = *position;
  return stop;
}

bool read_list_entry(text_cursor& cursor, std::vector<tab_stop>& tabs) {
  if (cursor.accept(u'z')) {
    tabs.clear();
    return true;
  }
  auto start = cursor;
  auto stop = read_stop(cursor);
  if (stop) {
    tabs.push_back(*stop);
  } else {
    cursor = start;
  }
  return stop.has_value();
}

}  // namespace

std::vector<tab_stop> read_tabs(text_cursor& cursor) {
  std::vector<tab_stop> tabs;
  while (read_list_entry(cursor, tabs) && cursor.accept(u',')) {
  }
  return tabs;
}

}  // namespace mtext::reading
