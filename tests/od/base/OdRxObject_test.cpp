#include "od/base/OdRxObject.h"

#include <gtest/gtest.h>

namespace {

int liveShapes = 0;

class TestShape : public OdRxObject {
  ODRX_DECLARE_MEMBERS(TestShape)
 public:
  TestShape() { ++liveShapes; }

 protected:
  ~TestShape() override { --liveShapes; }
};

class TestCircle : public TestShape {
  ODRX_DECLARE_MEMBERS(TestCircle)
};

class TestSquare : public TestShape {
  ODRX_DECLARE_MEMBERS(TestSquare)
};

ODRX_DEFINE_ABSTRACT_MEMBERS(TestShape, OdRxObject)
ODRX_DEFINE_MEMBERS(TestCircle, TestShape, u"CIRCLE")
ODRX_DEFINE_MEMBERS(TestSquare, TestShape, u"SQUARE")

}  // namespace

TEST(OdRxObject, ends_with_its_last_reference) {
  {
    OdSmartPtr<TestCircle> circle = odNew<TestCircle>();
    OdSmartPtr<TestShape> shape = circle;
    EXPECT_EQ(circle->numRefs(), 2);
    circle.release();
    EXPECT_EQ(liveShapes, 1);
  }
  EXPECT_EQ(liveShapes, 0);
}

TEST(OdRxObject, knows_its_class_and_the_classes_above) {
  OdSmartPtr<TestShape> shape = odNew<TestCircle>();

  EXPECT_EQ(shape->isA(), TestCircle::desc());
  EXPECT_TRUE(shape->isKindOf(TestShape::desc()));
  EXPECT_FALSE(shape->isKindOf(TestSquare::desc()));
}

TEST(OdRxObject, query_gives_a_counted_reference_or_null) {
  OdSmartPtr<TestShape> shape = odNew<TestCircle>();

  OdRxObject* found = shape->queryX(TestCircle::desc());
  EXPECT_EQ(found, shape.get());
  EXPECT_EQ(shape->numRefs(), 2);
  found->release();
  EXPECT_EQ(shape->queryX(TestSquare::desc()), nullptr);
}

TEST(OdRxObject, a_cast_that_must_succeed_throws_with_both_names) {
  OdSmartPtr<TestShape> shape = odNew<TestCircle>();

  EXPECT_TRUE(odCastOrThrow<TestCircle>(shape));
  EXPECT_TRUE(odCast<TestSquare>(shape).isNull());
  try {
    odCastOrThrow<TestSquare>(shape);
    FAIL() << "a circle passed as a square";
  } catch (const OdError_NotThatKindOfClass& error) {
    EXPECT_STREQ(error.what(), "Object of class TestCircle is not a TestSquare");
    EXPECT_EQ(error.code(), eNotThatKindOfClass);
  }
}

TEST(OdRxObject, a_null_pointer_that_is_used_throws) {
  OdSmartPtr<TestCircle> none;
  EXPECT_THROW(none->isA(), OdError);
}

TEST(OdRxClass, is_registered_by_name_once_and_creates_objects) {
  EXPECT_EQ(odrxFindClass(u"TestCircle"), TestCircle::desc());
  EXPECT_EQ(TestCircle::desc()->dxfName(), OdString(u"CIRCLE"));
  EXPECT_THROW(newOdRxClass({.name = u"TestCircle"}), OdError);
  EXPECT_TRUE(odCast<TestCircle>(TestCircle::desc()->create()));
  EXPECT_THROW(TestShape::desc()->create(), OdError);
}

TEST(OdRxClass, leaves_the_register_when_it_is_deleted) {
  OdRxClass* record =
      newOdRxClass({.name = u"TestPassing", .parent = OdRxObject::desc(), .proxyFlags = 3071});
  EXPECT_EQ(record->proxyFlags(), 3071u);

  deleteOdRxClass(record);

  EXPECT_EQ(odrxFindClass(u"TestPassing"), nullptr);
}
