#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "editor/mtext_editor.h"
#include "editor/stack_half.h"
#include "editor/text_frame.h"
#include "host/composer.h"
#include "mtext/dispose.h"
#include "mtext/geom_multitext.h"
#include "mtext/letters_dictionary.h"
#include "mtext/parse.h"
#include "mtext/string_size_finder.h"
#include "od/db/OdDbEntity.h"

namespace rich {
struct text;
}

/// Background of the text while it is edited, as the entity asks for it.
struct text_background {
  bool on = false;
  OdCmEntityColor color;
  bool use_drawing_background = false;
  double scale = 1.0;  ///< reach over the text in text heights, plus 1
};

/// The text of a session: laid out, with its carets, and with every operation that changes it.
///
/// It is an entity by class, so that the drawing library can draw it, and no table of the drawing ever holds
/// it. The operations run over all selections in the order of their positions, which is how several carets
/// type at once; none of them lays the text out. Whoever called them ends with `endOfEdit`.
///
/// Each job has a file of its own, named in the section's heading. Positions are indices into the parts.
class ExMTextEditable : public OdDbEntity {
 public:
  ExMTextEditable();
  ~ExMTextEditable() override;

  /// The class record, made and registered at the first call.
  static OdRxClass* desc();
  OdRxClass* isA() const override { return desc(); }
  static OdSmartPtr<ExMTextEditable> createObject();

  // ---- editable_load.cpp: settings and contents

  /// The codes to read with `load`, and the field objects for their markers.
  void setContents(OdString contents, mtext::fields_map fields = {});
  const OdString& contents() const { return m_contents; }
  /// Reads the contents into the text, marks its lists and lays it out. The caret stands at 0, behind a label
  /// that stands there. The lists are counted by the first `endOfEdit`.
  void load();
  /// What measures; kept for the session. Without one `load` measures with the fonts of the database, or
  /// those of an empty drawing.
  void setFinder(std::shared_ptr<const mtext::string_size_finder> finder) { m_finder = std::move(finder); }
  const mtext::string_size_finder& finder() const { return *m_finder; }
  /// The alphabets of lettered lists, for the next `load`. A new text has those of the application's
  /// settings.
  void setLetters(mtext::marks::letters_dictionary letters) { m_letters = std::move(letters); }
  const mtext::marks::letters_dictionary& letters() const { return m_letters; }
  /// Columns, spacing and the mode of extents. Height, alignment and vertical place follow `setTextHeight`
  /// and `setAttachment`.
  void setLayoutInfo(const mtext::convert_info& info);
  void setDefaultFormat(const mtext::format::string& format) { m_default_format = format; }
  const mtext::format::string& defaultFormat() const { return m_default_format; }
  /// The text as format codes, with the markers of its fields.
  OdString contentsText() const;
  /// The same with the fields' values in place of the markers.
  OdString evaluatedContentsText() const;
  bool hasFields() const;

  // ---- editable_frame.cpp: where it stands

  void setFrame(const text_frame& frame);
  const text_frame& frame() const { return m_frame; }
  void setNormal(const OdGeVector3d& normal);
  /// Turns the direction about the normal, from the x axis that the normal gives.
  void setRotation(double radians);
  void setLocation(const OdGePoint3d& location);
  /// Box of the attachment and, for a text without columns, the wrapping width and height limit.
  void setSize(double width, double height);
  /// With `keep_runs` only the base height changes; else the parts scale with it.
  void setTextHeight(double height, bool keep_runs);
  double textHeight() const { return m_text.info.height; }
  /// 0 top left to 8 bottom right; moves the text under its insertion point.
  void setAttachment(int attachment);
  int attachment() const { return m_frame.attachment; }
  OdGePlane plane() const { return m_frame.plane(); }
  OdGePoint3d origin() const { return m_frame.top_left(); }
  OdGeVector3d normal() const { return m_frame.normal; }
  OdGeVector3d direction() const { return m_frame.direction; }
  /// Box around the laid-out text in text coordinates, z 0; not valid for a text without lines.
  OdGeExtents3d textExtents() const;
  text_background background;

  // ---- editable_columns.cpp: what the gadgets change

  /// Takes other columns and lays out; the insertion point keeps its place in the drawing.
  void setColumns(const mtext::column_settings& columns);
  /// The formats of the paragraphs that the selections touch, and of all, in text order. They stay the
  /// text's, which has to be laid out when one has changed.
  std::vector<mtext::format::paragraph*> touchedParagraphs();
  std::vector<mtext::format::paragraph*> allParagraphs();

  // ---- editable_lines.cpp: lines as texts of their own

  std::size_t lineCount() const { return m_text.lines.size(); }
  /// Plain text of line `index` without its break, with the markers of its fields. Throws the text's own
  /// `std::invalid_argument` beyond the end.
  std::u16string lineText(std::size_t index) const;
  /// Where the baseline of line `index` starts, in the world.
  OdGePoint3d linePosition(std::size_t index) const;

  // ---- editable_draw.cpp

  /// In draft mode `worldDraw` draws the boxes of letters and stacks alone.
  void setDraft(bool draft) { m_draft = draft; }
  bool isDraft() const { return m_draft; }

  // ---- editable_filing.cpp

  OdResult dwgInFields(OdDbDwgFiler* filer) override;
  void dwgOutFields(OdDbDwgFiler* filer) const override;
  OdResult dxfInFields(OdDbDxfFiler* filer) override;
  void dxfOutFields(OdDbDxfFiler* filer) const override;

  // ---- editable_selection.cpp: carets

  void moveLeft(bool shift, bool word);
  void moveRight(bool shift, bool word);
  void moveUp(bool shift, bool add_caret);
  void moveDown(bool shift, bool add_caret);
  void moveHome(bool shift);
  void moveEnd(bool shift);
  void moveTextStart(bool shift);
  void moveTextEnd(bool shift);
  /// Selects `length` parts from `start`; -1 is up to the end. With `snap` the ends leave solids; with `keep`
  /// the other selections stay.
  void selectRange(std::size_t start, std::ptrdiff_t length, bool snap, bool keep);
  /// The word at a point in text coordinates, or a caret where there is none.
  void selectWordAt(const OdGePoint2d& at);
  /// From one point in text coordinates to another.
  void selectBetween(const OdGePoint2d& anchor, const OdGePoint2d& caret, bool keep);
  /// All but the first selection go.
  void keepFirstSelection();
  /// Replaces all selections; overlapping ones merge, and every end leaves the solids.
  void setSelections(const std::vector<mtext::marks::selection>& selections);
  std::vector<mtext::marks::selection> selections() const;
  std::size_t selectionCount() const { return selections().size(); }

  // ---- caret_points.cpp

  /// Ends of the caret of `selection` in text coordinates.
  void caretPoints(const mtext::marks::selection& selection, OdGePoint2d& top, OdGePoint2d& bottom) const;

  // ---- editable_composition.cpp

  /// Shows at every selection, in its place, what an input method composes. It is no part of the text: what
  /// is committed has to be typed.
  void compose(const HostComposition& composition);
  /// The text as it is shown: with what is being composed.
  const mtext::geom_multitext& displayed() const { return m_composed ? *m_composed : m_text; }
  /// As `caretPoints`, for a selection of the text as it is shown.
  void displayedCaret(const mtext::marks::selection& selection, OdGePoint2d& top, OdGePoint2d& bottom) const;

  // ---- editable_typing.cpp

  void insertChar(char16_t character);
  /// Plain text with the format at each caret; codes in it are letters.
  void insertText(std::u16string_view text);
  void insertLineBreak();
  /// A space at which no line breaks.
  void insertNonBreakingSpace();

  // ---- editable_tab.cpp

  /// Tab, or Shift+Tab with `shift`: puts selected paragraphs a step in or out, and the list item whose label
  /// stands before the caret a level deeper or up. Else a tab is typed, and behind what reads as a label it
  /// starts a list.
  void insertTab(bool shift);

  // ---- editable_numbering.cpp

  /// Makes list items of the paragraphs that the selections touch, or plain paragraphs with -1. Kinds are
  /// those of `marks::index`; `alphabet` is a place in `letters()` for the lettered ones.
  void setNumbering(int kind, std::size_t alphabet = 0);

  // ---- editable_delete.cpp

  void deleteBack(bool word);
  void deleteForward();
  /// Erases what is selected; `mark_changed` asks for layout.
  void deleteSelection(bool mark_changed);

  // ---- editable_format.cpp

  void applyFormat(const mtext::format::string_partial& change);
  /// The format of text typed at `selection` now.
  mtext::format::string insertionFormat(const mtext::marks::selection& selection) const;
  const mtext::format::string_partial& pendingFormat() const { return m_pending_format; }
  /// What the selections have in common; recomputed by `endOfEdit`.
  const mtext::format::string_partial& currentFormat() const { return m_current_format; }
  /// The same for a toolbar to show: at carets what a typed character would have of it, a height in drawing
  /// units.
  mtext::format::string_partial shownFormat() const;
  const mtext::format::paragraph_partial& currentParagraph() const { return m_current_paragraph; }

  // ---- editable_case.cpp

  /// The selected letters in upper case, or else in lower case. Labels of lists and fields keep theirs.
  void changeCase(bool to_upper);

  // ---- editable_style.cpp

  /// Takes font, width and slant of a style. With `keep_runs` every part takes the new default whole;
  /// without, only what equalled the old default does.
  void setStyle(OdDbObjectId style, bool keep_runs);
  OdDbObjectId styleId() const { return m_style; }

  // ---- editable_paragraph.cpp

  /// Ends the paragraph. Behind the text of a list item it opens the next item; an item without text it turns
  /// into a plain paragraph first, which is how a list ends.
  void insertParagraph(bool column_break);
  /// Ctrl+T: a paragraph that opens a column, unless the text has 100 columns.
  void insertColumnBreak();
  void applyParagraph(const mtext::format::paragraph_partial& change);

  // ---- editable_stack.cpp

  /// Each selection becomes the upper half of a stack. One that is such a half already becomes plain text
  /// again.
  void superscript();
  /// The same with the lower half.
  void subscript();
  void stackSelection();

  // ---- editable_clipboard.cpp

  bool copy() const;
  bool cut();
  /// `single_line` and `non_empty` tell of the session; see the rules in the file.
  void paste(bool single_line, bool non_empty);
  /// Whether the clipboard holds a format that `paste` takes.
  bool canPaste() const;
  bool isPrivateFormatAvailable() const;
  /// What is selected, as text without formats; nothing between several selections.
  std::u16string selectedText() const;

  // ---- editable_field.cpp

  /// The field whose value stands at a point in text coordinates; null if none does.
  const mtext::marks::field* fieldAt(const OdGePoint2d& at) const;
  /// The field itself that a mark of this text stands for.
  OdDbFieldPtr fieldObject(const mtext::marks::field& mark) const;
  /// Puts a field in place of each selection, with the format there.
  void insertField(const OdDbFieldPtr& field);
  /// Puts a field in place of the one at a point, with the format of its begin; nothing happens where none
  /// is. The carets stay.
  void replaceField(const OdGePoint2d& at, const OdDbFieldPtr& field);
  /// The value of the field at a point becomes text as any other.
  void convertFieldToText(const OdGePoint2d& at);
  /// The whole text as a container, evaluated, with a placeholder for each field; null for a text without
  /// fields. `present`, the container that the entity has now or null, lends the fields that are still there.
  OdDbFieldPtr fieldText(const OdDbField* present) const;
  /// The same for line `index` alone, as plain text.
  OdDbFieldPtr lineField(std::size_t index, const OdDbField* present) const;

  // ---- end_of_edit.cpp

  /// Closes every operation: drops the pending format if the selection moved, counts the lists and lays out
  /// if `relayout` and something asks for it, and tells the watchers of a moved selection.
  void endOfEdit(bool relayout);
  /// Lays out all of the text and recomputes the current formats, whether it is needed or not.
  void layOut();
  /// What the edits so far have cost: each of these reads the whole text. A key should cost one of each.
  struct costs {
    unsigned layouts = 0;     ///< the text was laid out
    unsigned numberings = 0;  ///< its lists were marked and counted
  };
  const costs& costsSoFar() const { return m_costs; }
  void notifyWatchers();
  /// Watchers stay their owner's.
  void addWatcher(MTextEditor& watcher) { m_watchers.push_back(&watcher); }
  void removeWatcher(MTextEditor& watcher);

  const mtext::geom_multitext& text() const { return m_text; }
  /// Replaces text, lines and selections by a text that was laid out, as undo does.
  void replaceText(mtext::geom_multitext text);

 protected:
  /// Draws letters and stacks through the text's matrix.
  void drawGeometry(OdGiWorldDraw& draw) const override;

 private:
  /// What to insert at a position, with the insertion format there.
  using insertion = std::function<mtext::geom_multitext(const mtext::format::string& format, std::size_t at)>;
  /// At each selection in turn: takes the insertion format, erases what is selected, inserts what `make`
  /// gives.
  void replaceSelections(const insertion& make);
  /// Erases what a mark covers; the mark collapses to its begin.
  void eraseRange(const mtext::marks::mark& range);
  /// Inserts parts and marks.
  void insertParts(std::size_t at, mtext::geom_multitext made);
  /// `count` parts came to stand at `at`, in place of others. Layout goes by what was noted since the last
  /// one, unless `m_layout_dirty` asks for all of it.
  void noteEdit(std::size_t at, std::size_t count, bool paragraph_ends);
  void recomputeCurrentFormats();
  /// The text has just been laid out: nothing asks for it any more.
  void takeLayout();
  /// Marks all lists anew, counts them and writes their labels.
  void renumber();
  /// Erases the label of the paragraph that begins at `start`, with its indents and tabs, if there is one.
  void removeLabel(std::size_t start);
  /// Gives the paragraph that begins at `start` a label, or its label another innermost level.
  void setLabel(std::size_t start, const mtext::marks::index& level);
  /// Ends a paragraph at `at`, as `insertParagraph` does.
  void startParagraph(std::size_t at, const mtext::format::string& format, bool column_break);
  /// Has the parts from `first` to `last` measure themselves again.
  void remeasure(std::size_t first, std::size_t last);
  /// Backspace at one selection. Returns whether it erased a word by `word`.
  bool deleteBackAt(const mtext::marks::selection& selection, bool word);
  void pasteCodes(const std::u16string& codes);
  /// The characters of a field, which enters the table of fields.
  mtext::geom_multitext fieldParts(const OdDbFieldPtr& field, const mtext::format::string& format);
  /// Gives the fields of a text that was read their values, and evaluates those that nobody knows here.
  void bindFields(mtext::multitext& text);
  void pastePlain(std::u16string_view text);
  void pasteForeign(const rich::text& foreign, bool single_line, bool non_empty);
  /// Whether a caret stands in a paragraph that opens with a label nobody has marked yet.
  bool caretMeetsNewLabel();
  /// Puts each paragraph of `range` a step in, or out with `back`: a list item by a level, others by a tab.
  void indentParagraphs(const mtext::marks::mark& range, bool back);
  /// Puts one item a level deeper, or up with `back`; its label may end up empty.
  void indentLabel(mtext::marks::numbering& label, bool back);
  void tabAtCaret(mtext::marks::selection& caret, bool shift);
  /// Makes an item of the paragraph if the text up to the tab that ends at `behind_tab` reads as a label.
  void startList(std::size_t behind_tab);
  /// What a selected text becomes, in the format of its begin; nothing: it stays.
  using rebuilding = std::function<std::optional<mtext::geom_multitext>(const mtext::geom_multitext& text,
                                                                        const mtext::format::string& format)>;
  /// Rebuilds what each selection holds and selects the outcome.
  void rebuildSelections(const rebuilding& make);
  void moveToHalf(editing::stack_half half);
  void caretPointsIn(const mtext::geom_multitext& text, const mtext::marks::selection& selection,
                     OdGePoint2d& top, OdGePoint2d& bottom) const;
  /// Inserts what is composed into a copy of the text as it is now.
  void displayComposition();
  /// One line up (`step` -1) or down (+1).
  void moveToLine(int step, bool shift, bool add_caret);

  OdString m_contents;
  mtext::fields_map m_fields;
  mtext::geom_multitext m_text;
  /// The entity's own drawing, or an empty one for the fonts of an entity without any.
  OdSmartPtr<OdDbDatabase> drawingWithFonts() const;

  mutable OdSmartPtr<OdDbDatabase> m_own_drawing;
  HostComposition m_composition;
  std::optional<mtext::geom_multitext> m_composed;  ///< the text as shown, while something is composed
  text_frame m_frame;
  std::shared_ptr<const mtext::string_size_finder> m_finder;
  OdDbObjectId m_style;
  mtext::format::string m_default_format;
  mtext::format::string_partial m_pending_format;
  mtext::format::string_partial m_current_format;
  mtext::format::paragraph_partial m_current_paragraph;
  std::vector<mtext::marks::selection> m_selections_before;  ///< as `endOfEdit` saw them last
  std::vector<MTextEditor*> m_watchers;
  mtext::marks::letters_dictionary m_letters;
  costs m_costs;
  bool m_numbering_dirty = false;
  bool m_layout_dirty = false;             ///< all of the text is to be laid out
  std::optional<mtext::text_edit> m_edit;  ///< what was typed and erased since it was
  bool m_draft = false;
};

using ExMTextEditablePtr = OdSmartPtr<ExMTextEditable>;
