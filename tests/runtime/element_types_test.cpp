// Widths and names of the element types, entry by entry.
#include "arrays/element_type_names.h"
#include "runtime/element_types.h"
#include "runtime/memory.h"
#include "runtime/startup.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <type_traits>
#include <vector>

using namespace torvane;

namespace {

using Names = std::vector<std::string>;

const std::vector<Names> kPrimary = {
    {"Integer8", "SignedInteger8", "signed char"},
    {"UnsignedInteger8", "Byte", "Character8", "char", "unsigned char", "UBIT8"},
    {"Integer16", "SignedInteger16", "signed short"},
    {"UnsignedInteger16", "Bit16", "Character16", "Short", "short", "unsigned short", "UBIT16"},
    {"Integer32", "SignedInteger32", "int"},
    {"UnsignedInteger32", "Character32"},
    {"Integer64", "SignedInteger64"},
    {"UnsignedInteger64", "Character64"},
    {"Real32", "Float", "float"},
    {"Real64", "Double", "double"},
    {"ComplexReal32", "Complex64", "complexreal32"},
    {"ComplexReal64", "Complex128", "complexreal64", "mcomplex"},
};

std::vector<Names> expectedAliases() {
  std::vector<Names> rows = kPrimary;
  rows[4] = {"Integer32", "SignedInteger32", "Integer", "int"};
  rows[9] = {"Real64", "Real", "Double", "double"};
  rows[10] = {"Complex64", "ComplexReal32", "complexreal32"};
  rows[11] = {"Complex128", "ComplexReal64", "complexreal64", "Complex", "mcomplex"};
  return rows;
}

std::vector<Names> contentOf(TypeNames *table) {
  std::vector<Names> rows(kElementTypeCount);
  for (size_t row = 0; row < rows.size(); ++row)
    for (int slot = 0; slot < kNamesOfAType && table[row][slot] != nullptr; ++slot)
      rows[row].push_back(table[row][slot]);
  return rows;
}

TEST(ElementTypes, WidthTableOfTensorTypesIsAPlainArrayOfSevenEntries) {
  const uint32_t expected[7] = {0, 4, 4, 8, 16, 0, 0};
  static_assert(std::is_same_v<decltype(MTensor_typeSizeTable), const uint32_t[7]>);
  for (int type = 0; type < 7; ++type) EXPECT_EQ(MTensor_typeSizeTable[type], expected[type]) << type;
}

TEST(ElementTypes, WidthsByTagStartWithNone) {
  const uint32_t expected[13] = {0, 1, 1, 2, 2, 4, 4, 8, 8, 4, 8, 8, 16};
  static_assert(sizeof(kElementWidths) == sizeof expected);
  for (int tag = 0; tag < 13; ++tag) EXPECT_EQ(kElementWidths[tag], expected[tag]) << tag;
}

TEST(ElementTypes, PrimaryTableHoldsExactlyItsNamesInOrder) {
  EXPECT_EQ(contentOf(kPrimaryTypeNames), kPrimary);
}

TEST(ElementTypes, AliasTableHoldsExactlyItsNamesInOrder) {
  EXPECT_EQ(contentOf(kTypeAliases), expectedAliases());
}

TEST(ElementTypes, NoNameOccursTwiceInATable) {
  for (TypeNames *table : {kPrimaryTypeNames, kTypeAliases}) {
    std::set<std::string> seen;
    for (const Names &row : contentOf(table))
      for (const std::string &name : row) EXPECT_TRUE(seen.insert(name).second) << name;
  }
}

TEST(ElementTypes, CanonicalNameIsTheFirstAliasOfTheTag) {
  const std::vector<Names> rows = expectedAliases();
  for (mint tag = 1; tag <= kElementTypeCount; ++tag)
    EXPECT_EQ(typeNameOfElementType(tag), rows[static_cast<size_t>(tag) - 1][0]);
  EXPECT_STREQ(typeNameOfElementType(11), "Complex64");
  EXPECT_STREQ(typeNameOfElementType(12), "Complex128");
}

TEST(ElementTypes, EveryAliasNamesItsTag) {
  const std::vector<Names> rows = expectedAliases();
  for (size_t row = 0; row < rows.size(); ++row)
    for (const std::string &name : rows[row])
      EXPECT_EQ(elementTypeOfName(name.c_str()), mint(row) + 1) << name;
}

TEST(ElementTypes, NamesMeanWhatTheTableSaysAndNotWhatTheySuggest) {
  EXPECT_EQ(elementTypeOfName("char"), 2);
  EXPECT_EQ(elementTypeOfName("Byte"), 2);
  EXPECT_EQ(elementTypeOfName("Short"), 4);
  EXPECT_EQ(elementTypeOfName("short"), 4);
  EXPECT_EQ(elementTypeOfName("signed short"), 3);
  EXPECT_EQ(elementTypeOfName("Bit16"), 4);
  EXPECT_EQ(elementTypeOfName("UBIT16"), 4);
  EXPECT_EQ(elementTypeOfName("UBIT8"), 2);
  EXPECT_EQ(kElementWidths[elementTypeOfName("Complex64")], 8u);
  EXPECT_EQ(kElementWidths[elementTypeOfName("Complex128")], 16u);
}

TEST(ElementTypes, ComparisonIsExactAndCaseSensitive) {
  for (const char *name :
       {"", "integer8", "INTEGER8", "Integer8 ", " Integer8", "Integer", "Real16", "Bit8", "unsigned int"})
    EXPECT_EQ(elementTypeOfName(name), std::string(name) == "Integer" ? 5 : 0) << name;
}

class NameMap : public testing::Test {
protected:
  NameMap() {
    initializeElementTypeNames(0);
    initializeElementTypeNames(1);
  }
  ~NameMap() override { tearDownElementTypeNames(); }
};

TEST_F(NameMap, EveryPrimaryNameMapsToItsTag) {
  for (size_t row = 0; row < kPrimary.size(); ++row)
    for (const std::string &name : kPrimary[row]) {
      const std::string elsewhere = name; // by content, not by address
      EXPECT_EQ(elementTypeOfPrimaryName(elsewhere.c_str()), mint(row) + 1) << name;
    }
}

TEST_F(NameMap, NamesOfTheAliasesAloneAreNotInTheMap) {
  for (const char *name : {"Integer", "Real", "Complex", "", "Real16", "integer8"})
    EXPECT_EQ(elementTypeOfPrimaryName(name), 0) << name;
}

TEST_F(NameMap, StageZeroClearsTheMapAndStageOneBringsItBackAtNoCost) {
  const uint32_t used = usedBytesOfThisThread();
  initializeElementTypeNames(0);
  EXPECT_EQ(elementTypeOfPrimaryName("Real64"), 0);
  for (mint stage = 1; stage <= 4; ++stage) initializeElementTypeNames(stage);
  EXPECT_EQ(elementTypeOfPrimaryName("Real64"), 10);
  EXPECT_EQ(usedBytesOfThisThread(), used);
}

TEST(NameMapTeardown, FreesTheMapAndAllowsAnotherStart) {
  const uint32_t used = usedBytesOfThisThread();
  initializeElementTypeNames(1);
  EXPECT_GT(usedBytesOfThisThread(), used);
  tearDownElementTypeNames();
  EXPECT_EQ(usedBytesOfThisThread(), used);
  EXPECT_EQ(elementTypeOfPrimaryName("Real64"), 0);
  tearDownElementTypeNames();
  initializeElementTypeNames(1);
  EXPECT_EQ(elementTypeOfPrimaryName("Real64"), 10);
  tearDownElementTypeNames();
}

} // namespace
