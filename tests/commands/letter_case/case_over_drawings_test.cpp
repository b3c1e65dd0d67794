#include <gtest/gtest.h>
#include <unicode/uchar.h>

#include <algorithm>
#include <cmath>
#include <iostream>
#include <set>

#include "commands/letter_case/tcase_command.h"
#include "host/windowless/application.h"
#include "mtext/entity/mtext_layout.h"
#include "mtext/parse.h"
#include "od/base/unicode.h"
#include "od/db/OdDbBlockReference.h"
#include "od/db/OdDbBlockTableRecord.h"
#include "od/db/OdDbMText.h"
#include "od/db/OdDbSymbolTable.h"
#include "od/db/OdDbText.h"
#include "od/dxf/file.h"
#include "tests/od/db/sample_drawings.h"
#include "ui/resources/strings.h"

// TCase over the drawings of other programs and those of the project: it changes letters and nothing else.

namespace {

constexpr const char16_t* kModes[] = {u"Sentence", u"Lower", u"Upper", u"Title", u"tOggle"};

std::vector<std::filesystem::path> drawings() {
  auto files = foreignDrawings();
  if (files.empty()) std::cout << "The drawings of other programs are not here; going on with samples/.\n";
  for (const auto& entry : std::filesystem::directory_iterator(SCRIBE_SOURCE_DIR "/samples"))
    if (entry.path().extension() == ".dxf") files.push_back(entry.path());
  return files;
}

/// All texts of all blocks, those of inserts as well.
HostSelectionSet texts_of(const OdDbDatabase& database) {
  HostSelectionSet texts;
  const auto add = [&](const OdDbObjectId& id) {
    const auto object = id.openObject();
    if (odCast<OdDbText>(object) || odCast<OdDbMText>(object)) texts.add(id);
  };
  const auto blocks = odCast<OdDbSymbolTable>(database.getBlockTableId().openObject());
  for (const OdDbObjectId& block : blocks->records()) {
    for (const OdDbObjectId& id : odCast<OdDbBlockTableRecord>(block.openObject())->entities()) {
      add(id);
      if (const auto insert = odCast<OdDbBlockReference>(id.openObject()))
        for (const OdDbObjectId& attribute : insert->attributes()) add(attribute);
    }
  }
  return texts;
}

std::u16string folded(std::u16string text) {
  for (char16_t& unit : text) unit = static_cast<char16_t>(u_foldCase(unit, U_FOLD_CASE_DEFAULT));
  return text;
}

std::u16string contents_of(const OdDbObjectId& id) {
  const auto object = id.openObject();
  if (const auto text = odCast<OdDbMText>(object)) return text->contents().str();
  return odCast<OdDbText>(object)->textString().str();
}

/// A character of a multi-line text, or what stands in its place, with its format.
struct piece {
  std::uint32_t type;
  std::u16string shown = {};  ///< without case; the code of a field as it is
  mtext::format::string format = {};
  mtext::format::paragraph paragraph = {};  ///< of the one that a `new_paragraph` begins
};

/// The pieces of a part: words character by character, since they may be cut in other places afterwards.
std::vector<piece> pieces_of(const mtext::part& part) {
  const std::uint32_t type = part.type();
  std::vector<piece> pieces;
  if (const auto* word = dynamic_cast<const mtext::string*>(&part))
    for (const char16_t unit : word->text) pieces.push_back({type, folded({unit}), part.format});
  else if (const auto* blanks = dynamic_cast<const mtext::spaces*>(&part))
    pieces.assign(blanks->count, {type, u" ", part.format});
  else if (const auto* stack = dynamic_cast<const mtext::stack*>(&part))
    pieces = {
        {type, folded(stack->numerator + char16_t(u'0' + stack->kind) + stack->denominator), part.format}};
  else if (const auto* field = dynamic_cast<const mtext::field*>(&part))
    pieces = {{type, field->code, part.format}};
  else if (const auto* end = dynamic_cast<const mtext::new_paragraph*>(&part))
    pieces = {{type, end->column_break ? u"column" : u"", {}, end->paragraph}};
  else
    pieces = {{type}};
  return pieces;
}

std::vector<piece> pieces_of(const std::u16string& contents) {
  mtext::multitext text;
  mtext::parse(contents, {}, text, {});
  std::vector<piece> pieces{{.type = mtext::part_new_paragraph, .paragraph = text.paragraph}};
  for (const mtext::part& part : text.parts)
    for (piece& each : pieces_of(part)) pieces.push_back(std::move(each));
  return pieces;
}

bool equal(const mtext::format::paragraph& a, const mtext::format::paragraph& b) {
  const auto change = mtext::format::merge(1.0, a, b);
  return !change.indent && !change.left && !change.right && !change.before && !change.after &&
         !change.alignment && !change.spacing && !change.tabs;
}

/// Whether a number is another as the codes write it: with five digits.
bool is_as_written(double written, double exact) {
  constexpr double kLastDigit = 0.0001;
  return std::abs(written - exact) <= kLastDigit * std::abs(exact);
}

/// Equal formats, whose heights may be in drawing units or in text heights.
bool equal(mtext::format::string a, const mtext::format::string& b, double text_height) {
  const auto relative = [text_height](const mtext::format::string& format) {
    return format.height_kind == 1 ? format.height : format.height / text_height;
  };
  const bool same = is_as_written(relative(a), relative(b)) &&
                    is_as_written(a.width_factor, b.width_factor) && is_as_written(a.oblique, b.oblique) &&
                    is_as_written(a.tracking, b.tracking);
  a.height = b.height;
  a.height_kind = b.height_kind;
  a.width_factor = b.width_factor;
  a.oblique = b.oblique;
  a.tracking = b.tracking;
  return same && a == b;
}

void expect_letters_alone_differ(const std::u16string& before, const std::u16string& after,
                                 double text_height) {
  const auto old = pieces_of(before), now = pieces_of(after);
  ASSERT_EQ(now.size(), old.size());
  for (std::size_t i = 0; i < old.size(); ++i) {
    SCOPED_TRACE("piece " + std::to_string(i));
    ASSERT_EQ(now[i].type, old[i].type);
    ASSERT_EQ(now[i].shown, old[i].shown);
    ASSERT_TRUE(equal(now[i].format, old[i].format, text_height));
    ASSERT_TRUE(equal(now[i].paragraph, old[i].paragraph));
  }
}

/// The texts that changed.
struct changed_texts {
  std::set<dxf::Handle> handles;
  std::size_t with_fields = 0;  ///< whose codes stand in a field object of their own
};

/// Each record that differs is one of those texts, or the field object that one of them has.
void expect_texts_alone_differ(const std::string& before, const std::string& after,
                               const changed_texts& changed) {
  const dxf::File old = dxf::File::read(before, "before"), now = dxf::File::read(after, "after");
  const dxf::Record* record = now.records().first();
  std::size_t fields = 0;
  for (const dxf::Record* was = old.records().first(); was; was = was->next(), record = record->next()) {
    ASSERT_TRUE(record);
    if (std::ranges::equal(*was, *record, {}, &dxf::Group::bytes, &dxf::Group::bytes)) continue;
    fields += was->is("FIELD");
    EXPECT_TRUE(was->is("FIELD") || changed.handles.contains(was->handle()))
        << was->type() << ' ' << was->handle();
  }
  EXPECT_FALSE(record);
  EXPECT_EQ(fields, changed.with_fields);
}

/// Runs the command on all texts of a drawing.
void change_case(OdDbDatabase& database, WindowlessApplication& application, const char16_t* mode) {
  HostPromptLoop& prompt = application.document().prompt();
  prompt.answerSelections([&database] { return texts_of(database); });
  application.input().line(mode);
  const OdSmartPtr<ICmdProcess> command(new CTCase, kOdRxObjAttach);
  EXPECT_EQ(command->run(), kCommandDone);
}

/// Changes a drawing in one mode, and compares; the number of texts that changed.
std::size_t expect_letters_alone_change(const std::filesystem::path& file, const char16_t* mode) {
  const std::string bytes = bytesOf(file);
  const auto database = OdDbDatabase::readBytes(bytes, file.filename().string());
  database->setTextLayout(std::make_shared<mtext::mtext_layout>());
  std::vector<std::pair<OdDbObjectId, std::u16string>> before;
  const HostSelectionSet texts = texts_of(*database);
  for (const OdDbObjectId& id : texts.ids()) before.emplace_back(id, contents_of(id));
  WindowlessApplication application(database);
  change_case(*database, application, mode);
  changed_texts changed;
  for (const auto& [id, contents] : before) {
    const std::u16string now = contents_of(id);
    if (now == contents) continue;
    SCOPED_TRACE(id.handle().ascii().toUtf8());
    changed.handles.insert(id.handle().value());
    changed.with_fields += odCast<OdDbEntity>(id.openObject())->getField(u"TEXT") != nullptr;
    if (const auto text = odCast<OdDbMText>(id.openObject())) {
      expect_letters_alone_differ(contents, now, text->textHeight());
      for (const OdDbObjectId& column : text->linkedColumns())
        changed.handles.insert(column.handle().value());
    } else {
      EXPECT_EQ(folded(now), folded(contents));
    }
  }
  expect_texts_alone_differ(bytes, database->writeBytes(), changed);
  return changed.handles.size();
}

}  // namespace

TEST(CaseOverDrawings, every_mode_changes_letters_of_the_texts_and_nothing_else) {
  resources::register_strings();
  for (const char16_t* mode : kModes) {
    std::size_t changed = 0;
    for (const auto& file : drawings()) {
      SCOPED_TRACE(file.filename().string() + ", " + odToUtf8(mode));
      changed += expect_letters_alone_change(file, mode);
    }
    EXPECT_GT(changed, 0U);
  }
}
