#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <iostream>
#include <map>

#include "od/dxf/file.h"
#include "tests/desk/cli/program.h"

using testing::HasSubstr;

// A drawing with fields that another program wrote goes through whole sessions.

namespace {

const std::filesystem::path kDrawing =
    SCRIBE_SOURCE_DIR "/../shared/data/r2013_mtext_paragraphs_stacks_fields.dxf";

/// The objects of a drawing by handle, as bytes.
std::map<dxf::Handle, std::string> objectsOf(const std::filesystem::path& drawing) {
  const dxf::File file = dxf::File::read(contentOf(drawing), drawing.string());
  std::map<dxf::Handle, std::string> objects;
  for (const dxf::Record& record : file.records())
    for (const dxf::Group& group : record) objects[record.handle()].append(group.bytes());
  return objects;
}

std::size_t count(const std::string& text, const std::string& word) {
  std::size_t found = 0;
  for (std::size_t at = 0; (at = text.find(word, at)) != text.npos; ++at) ++found;
  return found;
}

}  // namespace

TEST(FieldDrawing, takes_a_new_field_and_keeps_all_others_byte_for_byte) {
  if (!std::filesystem::exists(kDrawing)) {
    std::cout << "no drawing with fields of another program here\n";
    return;
  }
  writeFile(scratch("fields.dxf"), contentOf(kDrawing));
  const std::string script =
      "MTextEdit\nLast\n@key PageUp\n@right 0,0\n@menu Insert field\n@field \\AcVar Date \\f \"yyyy\"\n@key "
      "Ctrl+Enter\n";
  const ProgramRun run = runProgram("run fields.dxf - -o edited.dxf", script);
  EXPECT_EQ(run.exit_code, 0) << run.err;

  const auto before = objectsOf(scratch("fields.dxf")), after = objectsOf(scratch("edited.dxf"));
  std::size_t changed = 0;
  for (const auto& [handle, bytes] : before) changed += !after.contains(handle) || after.at(handle) != bytes;
  // The host, its container, the child that now tells this file's name, the list of fields, and the records
  // without a handle.
  EXPECT_LE(changed, 5U);
  EXPECT_EQ(after.size(), before.size() + 1);
  EXPECT_EQ(count(contentOf(scratch("edited.dxf")), "\\AcVar Date \\f \"yyyy\""), 1U);

  const ProgramRun again = runProgram("run edited.dxf - -o again.dxf", "MTextEdit\nLast\n@key Ctrl+Enter\n");
  EXPECT_EQ(again.exit_code, 0) << again.err;
  EXPECT_EQ(contentOf(scratch("again.dxf")), contentOf(scratch("edited.dxf")));
}
