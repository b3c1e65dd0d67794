#include "editor/popup_menu.h"

#include "editor/menu_commands.h"
#include "editor/smart_edit.h"
#include "host/regula_desk.h"
#include "host/sibling.h"
#include "host/window.h"

namespace editing {

namespace {

constexpr int kTextMenu = 228;
constexpr int kCompactTextMenu = 236;
constexpr int kNoPosition = -1;

/// The rows that belong here; what cannot be done now is disabled.
HostMenu menu_for(const menu_place& place) {
  HostMenu menu = host::resource_menu(place.session.isCompact() ? kCompactTextMenu : kTextMenu)[0].rows;
  host::remove_rows(menu, [&place](const HostMenuItem& row) {
    return row.command != 0 && !is_offered(row.command, place);
  });
  host::change_rows(menu, [&place](HostMenuItem& row) { row.enabled = is_enabled(row.command, place); });
  return menu;
}

/// The chosen command, 0 for none.
int ask(const menu_place& place, HostPixel at) {
  const HostMenu menu = menu_for(place);
  HostWindow* window = place.session.window();
  if (const auto desk = host::sibling<IRegulaDesk>()) {
    const std::u16string selected = place.session.editable().selectedText();
    return desk->showMenu(window, selected.empty() ? nullptr : selected.c_str(), menu, at.x, at.y,
                          kNoPosition);
  }
  return window ? window->popupMenu(menu, at) : 0;
}

}  // namespace

void show_popup_menu(smart_edit& session, const HostWindowMessage& message, const OdGePoint3d& point) {
  if (HostWindow* window = session.window()) window->setCursor(IDC_ARROW);
  const ExMTextEditablePtr alive(&session.editable());
  session.forgetPress();
  session.typed().forget();
  const menu_place place{session, session.textPoint(point)};
  const int command = ask(place, message.pixel);
  if (command == 0 || !run_menu_command(command, place)) return;
  session.repaint(redraw_request::kText);
  alive->endOfEdit(/*relayout=*/true);
}

}  // namespace editing
