#pragma once

#include <optional>

#include "editor/blink.h"
#include "editor/column_boxes.h"
#include "editor/editable.h"
#include "editor/gadget_mouse.h"
#include "editor/gadget_tree.h"
#include "editor/layers.h"
#include "editor/line_frame.h"
#include "editor/message_filter.h"
#include "editor/mouse.h"
#include "editor/redraw.h"
#include "editor/session_composer.h"
#include "editor/toolbar_link.h"
#include "editor/typed_characters.h"
#include "editor/undo_stack.h"
#include "editor/view_policy.h"
#include "host/edit_host.h"
#include "od/db/OdDbMText.h"
#include "od/db/OdDbText.h"

/// How a session begins.
struct session_start {
  std::optional<OdGePoint3d> caret_at =
      {};                ///< world point for the caret; without one it stands at the start
  bool is_new = false;   ///< the entity is not in the drawing yet
  bool compact = false;  ///< a session with few tools; an empty text is written too
};

/// One interactive edit of one text in the drawing view. It lives on the stack of the command's function,
/// while the command waits at the prompt: all editing happens in that wait, through the message filter.
///
/// It owns the pieces that do the work and knows how they fit together; what each does stands in its own
/// file.
class smart_edit : public MTextEditor {
 public:
  /// Puts the layers and the filter in place. `host` has to outlive the session.
  explicit smart_edit(EditHost& host);
  ~smart_edit() override;
  smart_edit(const smart_edit&) = delete;
  smart_edit& operator=(const smart_edit&) = delete;

  /// For a session that goes on where `earlier` ended: whether a text can be read as it lies is judged by the
  /// view in which the first of them began. Before the session begins.
  void continueView(const view_policy& earlier) { m_view_policy.begin(earlier); }
  const view_policy& viewPolicy() const { return m_view_policy; }

  // ---- session_begin.cpp

  /// Hides `source` and opens its text. The entity has to be open for write. Throws
  /// `OdError_NotThatKindOfClass` when its style or field is of another class. Always true.
  bool beginMTextEdit(OdDbMTextPtr source, const session_start& start = {});
  /// Opens what was put into the editable by hand, without an entity.
  void beginPlain(bool single_line, bool had_text);

  // ---- session_begin_line.cpp

  /// The same for a single-line text, which is selected whole. A text without letters is an example: what is
  /// typed becomes new texts, a line each.
  bool beginTextEdit(OdDbTextPtr source, const session_start& start = {});

  // ---- session_finish.cpp

  /// Writes the text into its entity if `accept`, and shows the entity again. An empty text is not accepted
  /// unless `force`. A text that is as it was opened writes nothing. Returns whether it was accepted in the
  /// end; without an entity returns `accept`.
  bool finishEdit(bool accept, bool force);

  /// The fields of a text that is in no drawing yet, as a container; null for one without fields. Whoever puts
  /// the text into a drawing has to set them there, under "TEXT".
  const OdDbFieldPtr& writtenField() const { return m_written_field; }
  /// The lines of a new single-line text, each an entity in the drawing, once the session has ended.
  const std::vector<OdDbObjectId>& writtenLines() const { return m_written_lines; }

  // ---- session_recovery.cpp

  /// A message broke off its handler. The text goes back to the state before it if a step was stored since
  /// there were `steps_before`; in the middle of a run it stays as it is, as long as it is sound. The reason
  /// is told in one sentence, and the session goes on.
  void recover(unsigned steps_before, const std::exception& error);

  /// Opens or continues a run of edits of one kind, in front of the edit.
  void pushUndoStep(int kind);
  void undoStep();
  void redoStep();
  /// A caret key ends the run of edits.
  void endUndoRun();
  /// Who is told that undo and redo changed; nobody without one.
  void setToolbar(toolbar_link toolbar) { m_toolbar = std::move(toolbar); }
  /// True when there is something to save.
  bool hasChanges() const { return !m_undo.is_empty(); }

  /// Ends the session by acceptance, or by cancelling: what the command waits for is typed at its prompt.
  void accept();
  void cancel();
  /// A press outside the text: acceptance, and the command may use the point.
  void exitAt(const OdGePoint3d& point);
  const std::optional<OdGePoint3d>& exitPoint() const { return m_exit_point; }

  /// Sets the redraw bits, flushes them and has the host paint.
  void repaint(unsigned layers);
  /// The point of the text's plane that is seen at a world point, in text coordinates; none when the view
  /// looks along the plane.
  std::optional<OdGePoint2d> textPoint(const OdGePoint3d& world) const;
  /// Where a point in text coordinates is seen, in the world.
  OdGePoint3d worldPoint(const OdGePoint2d& at) const;

  /// The drawing that is edited.
  OdDbDatabase& database() const { return m_host.database(); }
  ExMTextEditable& editable() { return *m_editable; }
  const ExMTextEditable& editable() const { return *m_editable; }
  const undo_stack& undo() const { return m_undo; }
  text_mouse& mouse() { return m_mouse; }
  typed_characters& typed() { return m_typed; }
  /// A key, a command or a failure comes between press and release: moves are no drag any more.
  void forgetPress();
  /// Ruler and handles; open in a multi-line session alone.
  const gadget_tree& gadgets() const { return m_gadgets; }
  void openGadgets();
  /// What is text in a single-line session; open in such a one alone.
  const line_frame& lineFrame() const { return m_line_frame; }
  /// Gives the gadgets their size for the view as it now is, painted or not.
  void fitGadgets();
  gadget_mouse& gadgetMouse() { return m_gadget_mouse; }
  const session_layers& layers() const { return m_layers; }
  bool isSingleLine() const { return m_single_line; }
  /// A single-line text that had letters when it was opened.
  bool editsExistingLine() const { return m_single_line && m_had_text; }
  bool isCompact() const { return m_compact; }
  bool isKeyDown() const { return m_key_down; }
  void setKeyDown(bool down) { m_key_down = down; }

  void onChanged() override;
  HostWindow* window() override;

 private:
  /// The text as it was opened, to tell afterwards what changed.
  struct origin {
    OdString contents;
    OdString shown;  ///< with what the fields show
    mtext::convert_info info;
    text_frame frame;
    OdDbObjectId style;
  };

  void hide(OdDbEntity& source);
  /// Has the host show the entity as it now is.
  static void updateDisplay(const OdDbEntity& source);
  void showSource();
  void takeOrigin();
  void startEditing(const session_start& start);
  void tellToolbar(toolbar_undo_change change) const;
  /// Behind undo and redo.
  void showRestored();
  bool textChanged() const;
  void write(OdDbMText& target);
  /// The text with its fields, or as plain contents where it has none.
  void writeContents(OdDbMText& target);
  void writeLine(OdDbText& target, std::size_t index);
  void writeColumns(OdDbMText& target);
  void write(OdDbText& target);
  // ---- session_lines.cpp

  /// Makes an entity of each of the first `count` lines that is not empty, after the example of `source`.
  void writeLines(const OdDbText& source, std::size_t count);
  // ---- session_view.cpp

  /// The text as the view policy looks at it.
  editing::shown_text shownText() const;
  /// Has the view policy look at the text.
  void placeInView();
  std::vector<editing::text_box> backgroundBoxes() const;
  void drawText(OdGiWorldDraw& draw);
  void drawCaret(OdGiViewportDraw& draw);
  void drawGadgets(OdGiViewportDraw& draw);

  EditHost& m_host;
  ExMTextEditablePtr m_editable;
  undo_stack m_undo;
  toolbar_link m_toolbar;
  text_mouse m_mouse;
  typed_characters m_typed;
  gadget_tree m_gadgets;
  line_frame m_line_frame;
  gadget_mouse m_gadget_mouse{*this};
  view_policy m_view_policy;
  session_layers m_layers;
  redraw_request m_redraw;
  session_filter m_filter;
  session_composer m_composer{*this};
  std::optional<caret_blink> m_blink;
  OdDbMTextPtr m_source_text;
  OdDbTextPtr m_source_line;
  origin m_origin;
  std::vector<OdDbObjectId> m_written_lines;
  OdDbFieldPtr m_written_field;
  std::optional<OdGePoint3d> m_exit_point;
  bool m_single_line = false;
  bool m_had_text = false;
  bool m_is_new = false;
  bool m_compact = false;
  bool m_key_down = false;
};
