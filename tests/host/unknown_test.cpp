#include "host/unknown.h"

#include <gtest/gtest.h>

#include "host/command.h"

namespace {

class Nothing : public CCmdProcess {
 public:
  explicit Nothing(bool& gone) : m_gone(gone) {}
  ~Nothing() override { m_gone = true; }
  int run() override { return setStatus(kCommandDone); }

 private:
  bool& m_gone;
};

TEST(Unknown, a_new_object_has_one_reference_and_ends_with_it) {
  bool gone = false;
  auto* object = new Nothing(gone);
  EXPECT_EQ(object->references(), 1);
  object->release();
  EXPECT_TRUE(gone);
}

TEST(Unknown, a_query_finds_every_interface_up_to_the_root_and_adds_a_reference) {
  bool gone = false;
  const OdSmartPtr<Nothing> object(new Nothing(gone), kOdRxObjAttach);
  const auto process = krQuery<ICmdProcess>(object.get());
  const auto run = krQuery<ICmdRun>(object.get());
  const auto root = krQuery<IKrUnknown>(object.get());
  EXPECT_TRUE(process && run && root);
  EXPECT_EQ(object->references(), 4);
}

TEST(Unknown, a_query_for_another_interface_gives_null) {
  bool gone = false;
  const OdSmartPtr<Nothing> object(new Nothing(gone), kOdRxObjAttach);
  EXPECT_EQ(object->queryInterface("IEvents"), nullptr);
  EXPECT_EQ(object->references(), 1);
}

TEST(Command, status_goes_from_running_to_what_run_returns) {
  bool gone = false;
  const OdSmartPtr<Nothing> command(new Nothing(gone), kOdRxObjAttach);
  EXPECT_EQ(command->status(), kCommandRunning);
  EXPECT_EQ(command->run(), kCommandDone);
  EXPECT_EQ(command->status(), kCommandDone);
}

TEST(Command, a_follow_up_is_held_until_its_command_ends) {
  bool gone = false, next_gone = false;
  OdSmartPtr<Nothing> command(new Nothing(gone), kOdRxObjAttach);
  command->setFollowUp(OdSmartPtr<ICmdProcess>(new Nothing(next_gone), kOdRxObjAttach));
  EXPECT_TRUE(command->followUp());
  EXPECT_FALSE(next_gone);
  command.release();
  EXPECT_TRUE(gone);
  EXPECT_TRUE(next_gone);
}

}  // namespace
