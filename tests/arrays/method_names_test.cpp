#include "arrays/element_type_names.h"
#include "arrays/method_names.h"
#include "runtime/memory.h"
#include "runtime/startup.h"

#include <gtest/gtest.h>
#include <string>

namespace torvane::test {

namespace {

constexpr const char *kEight[] = {"Check", "ClipAndCheck", "Coerce", "ClipAndCoerce",
                                  "Round", "ClipAndRound", "Scale",  "ClipAndScale"};

TEST(MethodNames, NumbersHaveTheirNames) {
  for (mint number = 1; number <= 8; ++number) EXPECT_STREQ(nameOfMethod(number), kEight[number - 1]);
  for (const mint number : {INT32_MIN, 0, 9}) EXPECT_EQ(nameOfMethod(number), nullptr);
}

class ConversionTables : public testing::Test {
protected:
  ConversionTables() {
    initializeConversionTables(0);
    initializeConversionTables(1);
  }
  ~ConversionTables() override { tearDownConversionTables(); }
};

TEST_F(ConversionTables, NamesHaveTheirNumbers) {
  for (mint number = 1; number <= 8; ++number)
    EXPECT_EQ(methodOfName(std::string(kEight[number - 1]).c_str()), number); // by content
}

TEST_F(ConversionTables, UnknownNamesAreZero) {
  for (const char *name : {"", "check", "Check ", "Clip", "Floor", "Real64"})
    EXPECT_EQ(methodOfName(name), 0) << name;
}

TEST_F(ConversionTables, StageZeroClearsBothMapsAndStageOneBringsThemBackAtNoCost) {
  const uint32_t used = usedBytesOfThisThread();
  initializeConversionTables(0);
  EXPECT_EQ(methodOfName("Scale"), 0);
  EXPECT_EQ(elementTypeOfPrimaryName("Real64"), 0);
  for (mint stage = 1; stage <= 4; ++stage) initializeConversionTables(stage);
  EXPECT_EQ(methodOfName("Scale"), 7);
  EXPECT_EQ(elementTypeOfPrimaryName("Real64"), 10);
  EXPECT_EQ(usedBytesOfThisThread(), used);
}

TEST(ConversionTablesTeardown, FreesBothMaps) {
  const uint32_t used = usedBytesOfThisThread();
  initializeConversionTables(1);
  EXPECT_GT(usedBytesOfThisThread(), used);
  tearDownConversionTables();
  EXPECT_EQ(usedBytesOfThisThread(), used);
  EXPECT_EQ(methodOfName("Check"), 0);
}

} // namespace

} // namespace torvane::test
