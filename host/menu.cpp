#include "host/menu.h"

#include <algorithm>
#include <map>
#include <stdexcept>

#include "host/translate.h"

namespace {

std::map<int, std::span<const ResourceMenuRow>>& menus() {
  static std::map<int, std::span<const ResourceMenuRow>> table;
  return table;
}

HostMenuItem row_of(const ResourceMenuRow& resource) {
  return {.command = resource.command,
          .text = Supp_Translate(resource.text),
          .hint = Supp_Translate(resource.hint)};
}

bool same_row(const ResourceMenuRow& a, const ResourceMenuRow& b) {
  return a.depth == b.depth && a.command == b.command && std::u16string_view(a.text) == b.text &&
         std::u16string_view(a.hint) == b.hint;
}

/// Each row stands at the depth of the one before, above it, or one deeper.
bool is_a_tree(std::span<const ResourceMenuRow> rows) {
  int deepest = 0;
  for (const ResourceMenuRow& row : rows) {
    if (row.depth < 0 || row.depth > deepest) return false;
    deepest = row.depth + 1;
  }
  return true;
}

/// The menu itself and every sub-menu, each behind the one that holds it.
std::vector<HostMenu*> levels_of(HostMenu& menu) {
  std::vector<HostMenu*> levels{&menu};
  for (std::size_t at = 0; at < levels.size(); ++at)
    for (HostMenuItem& row : *levels[at])
      if (!row.rows.empty()) levels.push_back(&row.rows);
  return levels;
}

void drop_idle_separators(HostMenu& level) {
  HostMenu kept;
  for (HostMenuItem& row : level)
    if (!row.isSeparator() || (!kept.empty() && !kept.back().isSeparator())) kept.push_back(std::move(row));
  if (!kept.empty() && kept.back().isSeparator()) kept.pop_back();
  level = std::move(kept);
}

}  // namespace

namespace host {

void register_menus(std::span<const ResourceMenu> table) {
  for (const ResourceMenu& menu : table) {
    if (!is_a_tree(menu.rows))
      throw std::invalid_argument("register_menus: menu " + std::to_string(menu.number) +
                                  " has a row too deep");
    const auto [entry, added] = menus().try_emplace(menu.number, menu.rows);
    const auto& known = entry->second;
    if (!added && !std::equal(known.begin(), known.end(), menu.rows.begin(), menu.rows.end(), same_row))
      throw std::invalid_argument("register_menus: menu " + std::to_string(menu.number) + " has two tables");
  }
}

HostMenu resource_menu(int number) {
  const auto found = menus().find(number);
  if (found == menus().end())
    throw std::invalid_argument("resource_menu: there is no menu " + std::to_string(number));
  HostMenu menu;
  std::vector<HostMenu*> levels{&menu};  // the menus that a row may go into, by depth
  for (const ResourceMenuRow& row : found->second) {
    levels.resize(static_cast<std::size_t>(row.depth) + 1);
    levels.back()->push_back(row_of(row));
    levels.push_back(&levels.back()->back().rows);
  }
  return menu;
}

std::vector<const HostMenuItem*> all_rows(const HostMenu& menu) {
  std::vector<const HostMenuItem*> found, open;
  const auto put_aside = [&open](const HostMenu& level) {
    for (auto row = level.rbegin(); row != level.rend(); ++row) open.push_back(&*row);
  };
  for (put_aside(menu); !open.empty();) {
    const HostMenuItem* row = open.back();
    open.pop_back();
    found.push_back(row);
    put_aside(row->rows);
  }
  return found;
}

void change_rows(HostMenu& menu, const std::function<void(HostMenuItem&)>& change) {
  for (HostMenu* level : levels_of(menu)) std::for_each(level->begin(), level->end(), change);
}

void remove_rows(HostMenu& menu, const std::function<bool(const HostMenuItem&)>& unwanted) {
  const auto opens_nothing = [](const HostMenuItem& row) {
    return row.command == 0 && !row.isSeparator() && row.rows.empty();
  };
  const auto levels = levels_of(menu);
  for (auto level = levels.rbegin(); level != levels.rend(); ++level) {
    std::erase_if(**level, [&](const HostMenuItem& row) { return unwanted(row) || opens_nothing(row); });
    drop_idle_separators(**level);
  }
}

}  // namespace host
