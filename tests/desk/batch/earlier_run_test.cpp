#include "desk/batch/earlier_run.h"

#include "desk/batch/digest.h"
#include "od/dxf/staged_save.h"
#include "tests/desk/batch/scratch_folder.h"

namespace {

class EarlierRunOf : public ScratchFolder {
 protected:
  EarlierRun inPlace(DrawingOutcome outcome = DrawingOutcome::changed) const {
    return earlierRun({.file = drawing, .target = drawing}, entry(outcome), /*in_place=*/true);
  }
  EarlierRun elsewhere() const {
    return earlierRun({.file = drawing, .target = target}, entry(DrawingOutcome::changed),
                      /*in_place=*/false);
  }
  static JournalEntry entry(DrawingOutcome outcome) {
    return {.outcome = outcome, .source = digestOf("old"), .result = digestOf("new")};
  }

  std::filesystem::path drawing = put("a.dxf", "old");
  std::filesystem::path target = folder / "new" / "a.dxf";
};

TEST_F(EarlierRunOf, a_new_drawing_in_its_place_is_done) {
  put("a.dxf", "new");
  EXPECT_EQ(inPlace(), EarlierRun::done);
}

TEST_F(EarlierRunOf, a_staged_one_beside_the_old_is_only_to_be_put_in_place) {
  dxf::stage_save(drawing, "new");
  EXPECT_EQ(inPlace(), EarlierRun::noted);
}

TEST_F(EarlierRunOf, an_old_one_without_or_with_another_staged_one_is_to_be_done) {
  EXPECT_EQ(inPlace(), EarlierRun::nothing);
  dxf::stage_save(drawing, "half a dra");
  EXPECT_EQ(inPlace(), EarlierRun::nothing);
}

TEST_F(EarlierRunOf, one_that_is_neither_old_nor_new_is_left_alone) {
  put("a.dxf", "somebody else's");
  EXPECT_EQ(inPlace(), EarlierRun::overtaken);
}

TEST_F(EarlierRunOf, one_that_failed_is_to_be_done) {
  put("a.dxf", "new");
  EXPECT_EQ(inPlace(DrawingOutcome::failed), EarlierRun::nothing);
}

TEST_F(EarlierRunOf, one_that_had_nothing_to_change_may_be_done_again_whatever_it_is_now) {
  const JournalEntry same{
      .outcome = DrawingOutcome::unchanged, .source = digestOf("old"), .result = digestOf("old")};
  const DrawingJob job{.file = drawing, .target = drawing};
  EXPECT_EQ(earlierRun(job, same, /*in_place=*/true), EarlierRun::done);
  put("a.dxf", "somebody else's");
  EXPECT_EQ(earlierRun(job, same, /*in_place=*/true), EarlierRun::nothing);
}

TEST_F(EarlierRunOf, one_for_another_folder_is_done_when_it_is_there_and_the_drawing_is_the_same) {
  EXPECT_EQ(elsewhere(), EarlierRun::nothing);
  put("new/a.dxf", "new");
  EXPECT_EQ(elsewhere(), EarlierRun::done);
  put("a.dxf", "a newer plan");
  EXPECT_EQ(elsewhere(), EarlierRun::nothing);
}

TEST_F(EarlierRunOf, one_staged_for_another_folder_is_only_to_be_put_in_place) {
  std::filesystem::create_directory(folder / "new");
  dxf::stage_save(target, "new");
  EXPECT_EQ(elsewhere(), EarlierRun::noted);
}

TEST(Digest, is_sha_256_and_empty_for_no_file) {
  EXPECT_EQ(digestOf("abc"), "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad");
  EXPECT_EQ(fileDigest("/no/such/file"), "");
}

}  // namespace
