#pragma once

#include <functional>
#include <map>
#include <vector>

#include "editor/mtext_editor.h"
#include "host/input.h"
#include "host/menu.h"
#include "ui/controls/CColorComboBox.h"
#include "ui/controls/CComboBoxConfirmed.h"
#include "ui/controls/CComboBoxT.h"
#include "ui/controls/CUpDownWithEdit.h"
#include "ui/fonts/font_list.h"
#include "ui/toolbar/text_change.h"

class ExMTextEditable;
class OdDbObjectId;
class smart_edit;
class ToolbarWindow;

/// The formatting toolbar of a session: what its controls show, and what each of them does to the text.
///
/// Every action has one shape: an undo step is opened, the text is changed, painted, the focus goes back to
/// the view, and the edit is closed. While the toolbar shows the format of the selection nothing that its
/// controls report counts as the user's.
class CMTextEdit : public MTextEditor {
 public:
  /// How a button looks.
  struct look {
    bool enabled = true;
    bool checked = false;

    friend bool operator==(const look&, const look&) = default;  ///< field by field
  };
  using FontBox = CComboBoxT<fonts::font_row>;
  using StyleBox = CComboBoxT<OdDbObjectId>;

  /// Watches a session that has begun; `session` and `window` have to outlive the toolbar. `font_rows` are
  /// the fonts to choose from.
  CMTextEdit(smart_edit& session, ToolbarWindow& window, std::vector<fonts::font_row> font_rows);
  /// Leaves its sizes and its place to the next toolbar.
  ~CMTextEdit() override;
  CMTextEdit(const CMTextEdit&) = delete;
  CMTextEdit& operator=(const CMTextEdit&) = delete;

  /// Shows few controls.
  bool isCompact() const;
  /// Throws `std::out_of_range` for a number that is no button's.
  const look& lookOf(int id) const { return m_looks.at(id); }
  CUpDownWithEdit& oblique() { return m_oblique; }
  CUpDownWithEdit& widthFactor() { return m_width; }
  CComboBoxConfirmed& sizes() { return m_sizes; }
  FontBox& fonts() { return m_fonts; }
  StyleBox& styles() { return m_styles; }
  CColorComboBox& colors() { return m_colors; }

  // ---- press_button.cpp

  /// The user pressed a button.
  void press(int id);
  /// The user closed the window: the session is cancelled.
  void close();

  // ---- refresh.cpp

  /// The selection or the text changed.
  void onChanged() override { refresh(); }
  HostWindow* window() override;

  // ---- for the actions of buttons and menus

  smart_edit& session() { return m_session; }
  ExMTextEditable& editable();
  /// Where a menu of a control opens, in pixels of the view.
  HostPixel menuPlace(int id);
  /// Opens a menu at a control; the chosen command, 0 for none.
  int choose(const HostMenu& menu, int id);

 private:
  // ---- CMTextEdit.cpp

  void fillFonts(std::vector<fonts::font_row> rows);
  void fillStyles();
  void connectBoxes();
  // ---- change_text.cpp

  /// Runs what the user asked for, and gives the focus back to the view. False, and nothing happens, while
  /// the toolbar shows the text. What an operation throws breaks it off and is told to the user; the session
  /// goes on.
  bool perform(const std::function<void()>& run);
  /// Pushes the step, changes the text, and closes the edit.
  void run(const text_change& change);
  /// Both.
  bool change(const text_change& change);
  bool applySize(float size);
  bool applyFont(const FontBox::Row& row);
  bool applyStyle(const StyleBox::Row& row);
  bool applyColor(const OdCmEntityColor& color);
  bool applyOblique(double degrees);
  bool applyWidth(double factor);
  // ---- refresh.cpp

  void refresh();
  /// Undo and redo alone.
  void showUndo();
  void showLetters(const mtext::format::string_partial& format);
  void showBoxes(const mtext::format::string_partial& format);
  void showFont(const mtext::format::string_partial& format);
  void showParagraph();
  void showStacks();
  void show(int id, const look& now);

  smart_edit& m_session;
  ToolbarWindow& m_window;
  bool m_refreshing = false;
  std::map<int, look> m_looks;
  CUpDownWithEdit m_oblique{{.factor = 1, .low = -80, .high = 80}, 0.0};
  CUpDownWithEdit m_width{{.factor = 100, .low = 0.1, .high = 10}, 1.0};
  CComboBoxConfirmed m_sizes;
  FontBox m_fonts;
  StyleBox m_styles;
  CColorComboBox m_colors;
};
