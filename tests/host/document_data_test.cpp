#include "host/document_data.h"

#include <gtest/gtest.h>

#include <optional>

#include "host/windowless/application.h"

namespace {

TEST(DocumentData, a_missing_record_is_made_and_kept) {
  WindowlessApplication application(OdDbDatabase::createEmpty());
  HostApDataManager<int> data;
  EXPECT_EQ(data[application.document()], 0);
  data[application.document()] = 7;
  EXPECT_EQ(data[application.document()], 7);
}

TEST(DocumentData, a_record_goes_with_its_document_and_others_stay) {
  WindowlessApplication stays(OdDbDatabase::createEmpty());
  std::optional<WindowlessApplication> goes(OdDbDatabase::createEmpty());
  HostApDataManager<int> data;
  data[stays.document()] = 1;
  data[goes->document()] = 2;
  goes.reset();
  EXPECT_EQ(data.size(), 1u);
  EXPECT_EQ(data[stays.document()], 1);
}

TEST(DocumentData, a_document_outlives_those_who_remembered_it) {
  WindowlessApplication application(OdDbDatabase::createEmpty());
  { HostApDataManager<int>()[application.document()] = 3; }
  HostApDataManager<int> later;
  EXPECT_EQ(later[application.document()], 0);
}

}  // namespace
