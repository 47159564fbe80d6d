// The tables of sparse, pixel and numeric arrays, through the record alone.
#include "interface/library_record.h"
#include "support/failing_heap.h"

#include <cstring>
#include <numeric>

namespace torvane::test {

namespace {

class RecordSparse : public WithRecord {
protected:
  const TorvaneSparseTable *const sparse = record->sparse;
  std::vector<mint> entries(const mint *first, mint count) const {
    return std::vector<mint>(first, first + count);
  }
};

TEST_F(RecordSparse, ArrayOfPositionsTellsItsFields) {
  const MTensor *positions = integers({2, 2}, {2, 1, 1, 3}), *values = integers({2}, {7, 8});
  MSparseArray *array = nullptr;
  ASSERT_EQ(sparse->fromPositions(positions, values, nullptr, nullptr, &array), 0);
  EXPECT_EQ(sparse->rank(array), 2);
  EXPECT_EQ(entries(sparse->dimensions(array), 2), (std::vector<mint>{2, 3}));
  EXPECT_EQ(sparse->elementCount(array), 2);
  EXPECT_EQ(entries(sparse->rowPointers(array), 3), (std::vector<mint>{0, 1, 2}));
  EXPECT_EQ(entries(sparse->columnIndices(array), 2), (std::vector<mint>{3, 1}));
  EXPECT_EQ(sparse->type(array), TORVANE_TYPE_INTEGER);
  EXPECT_EQ(valuesOf(sparse->values(array)), (std::vector<mint>{8, 7}));
  EXPECT_EQ(valuesOf(sparse->background(array)), (std::vector<mint>{0}));

  mint rank, count, type, *dimensions, *rows, *columns;
  MTensor *held, *background;
  sparse->properties(array, &rank, &dimensions, &count, &rows, &columns, &type, &held, &background);
  EXPECT_EQ(rank, 2);
  EXPECT_EQ(dimensions, sparse->dimensions(array));
  EXPECT_EQ(count, 2);
  EXPECT_EQ(rows, sparse->rowPointers(array));
  EXPECT_EQ(columns, sparse->columnIndices(array));
  EXPECT_EQ(type, TORVANE_TYPE_INTEGER);
  EXPECT_EQ(held, sparse->values(array));
  EXPECT_EQ(background, sparse->background(array));
  sparse->properties(array, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr);
  sparse->deleteArray(array);
}

TEST_F(RecordSparse, NullArrayAnswersZero) {
  EXPECT_EQ(sparse->rank(nullptr), 0);
  EXPECT_EQ(sparse->dimensions(nullptr), nullptr);
  EXPECT_EQ(sparse->elementCount(nullptr), 0);
  EXPECT_EQ(sparse->rowPointers(nullptr), nullptr);
  EXPECT_EQ(sparse->columnIndices(nullptr), nullptr);
  EXPECT_EQ(sparse->type(nullptr), 0);
  EXPECT_EQ(sparse->values(nullptr), nullptr);
  EXPECT_EQ(sparse->background(nullptr), nullptr);
  EXPECT_EQ(sparse->copy(nullptr), nullptr);
  MSparseArray *slot = nullptr;
  EXPECT_EQ(sparse->copyInto(nullptr, &slot), -1);
  sparse->deleteArray(nullptr);
}

TEST_F(RecordSparse, FailureToBuildReplacesWhatTheSlotHeld) {
  const MTensor *positions = integers({1, 2}, {1, 1}), *outside = integers({1, 2}, {0, 1});
  MSparseArray *array = nullptr;
  ASSERT_EQ(sparse->fromPositions(positions, nullptr, nullptr, nullptr, &array), 0);
  EXPECT_EQ(sparse->type(array), TORVANE_TYPE_PATTERN);
  EXPECT_EQ(sparse->fromPositions(outside, nullptr, nullptr, nullptr, &array), -1);
  EXPECT_EQ(array, nullptr);
  EXPECT_EQ(sparse->fromPositions(reals({1, 2}, {1, 1}), nullptr, nullptr, nullptr, &array), -1);
}

TEST_F(RecordSparse, TensorsGoInAndComeOut) {
  const MTensor *tensor = reals({2, 2}, {0, 1.5, 0, -2.5});
  MSparseArray *array = nullptr, *copy = nullptr;
  MTensor *dense = nullptr;
  ASSERT_EQ(sparse->fromTensor(tensor, nullptr, &array), 0);
  EXPECT_EQ(sparse->elementCount(array), 2);
  ASSERT_EQ(sparse->copyInto(array, &copy), 0);
  ASSERT_EQ(sparse->copyInto(array, &copy), 0); // the first copy goes
  MSparseArray *const second = sparse->copy(array);
  sparse->deleteArray(array);
  ASSERT_EQ(sparse->toTensor(copy, &dense), 0);
  EXPECT_EQ(realsOf(keep(dense)), (std::vector<mreal>{0, 1.5, 0, -2.5}));
  ASSERT_EQ(sparse->toTensor(second, &dense), 0);
  EXPECT_EQ(realsOf(dense), (std::vector<mreal>{0, 1.5, 0, -2.5}));
  const MTensor *background = reals({}, {1.5}), *another = integers({}, {1}), *wide = reals({1}, {0});
  ASSERT_EQ(sparse->setBackground(copy, background, &copy), 0);
  EXPECT_EQ(sparse->elementCount(copy), 3);
  EXPECT_EQ(realsOf(sparse->background(copy)), (std::vector<mreal>{1.5}));
  EXPECT_EQ(sparse->setBackground(copy, another, &copy), 1);
  EXPECT_EQ(sparse->setBackground(copy, wide, &copy), 2);
  EXPECT_EQ(sparse->fromTensor(tensor, another, &copy), -1);
  ASSERT_EQ(sparse->toTensor(copy, &dense), 0);
  EXPECT_EQ(realsOf(dense), (std::vector<mreal>{0, 1.5, 0, -2.5}));
  sparse->deleteArray(copy);
  sparse->deleteArray(second);
}

TEST_F(RecordSparse, PatternHasNoTensorAndTakesNoBackground) {
  MSparseArray *pattern = nullptr;
  ASSERT_EQ(sparse->fromPositions(integers({1, 1}, {2}), nullptr, nullptr, nullptr, &pattern), 0);
  MTensor *dense = nullptr;
  EXPECT_EQ(sparse->toTensor(pattern, &dense), 1);
  EXPECT_EQ(sparse->setBackground(pattern, nullptr, &pattern), 1);
  sparse->deleteArray(pattern);
}

TEST_F(RecordSparse, ExpansionWithoutMemoryIs403) {
  const MTensor *extent = integers({1}, {1 << 20});
  MSparseArray *array = nullptr;
  ASSERT_EQ(sparse->fromPositions(integers({1, 1}, {2}), integers({1}, {5}), extent, nullptr, &array), 0);
  FailingHeap heap;
  heap.failFrom(1);
  MTensor *dense = nullptr;
  EXPECT_EQ(sparse->toTensor(array, &dense), 403);
  heap.succeed();
  sparse->deleteArray(array);
}

// Rasters, by kind: the value's type and the words of the table for it.
struct Kind {
  mint kind;
  size_t width;
  // Sets and gets through the words of the kind; the value of number n is n, a bit's n % 2.
  mint (*set)(const TorvanePixelTable *, TorvanePixelArray *, const mint *, mint channel, mint n);
  mint (*get)(const TorvanePixelTable *, const TorvanePixelArray *, const mint *, mint channel, mint *n);
  const void *(*data)(const TorvanePixelTable *, const TorvanePixelArray *);
  mint (*at)(const void *data, size_t i);
};

template <class Value, auto setter, auto getter, auto pointer> constexpr Kind kindOf(mint kind) {
  return {kind,
          sizeof(Value),
          [](const TorvanePixelTable *table, TorvanePixelArray *pixels, const mint *at, mint channel,
             mint n) { return (table->*setter)(pixels, at, channel, static_cast<Value>(n)); },
          [](const TorvanePixelTable *table, const TorvanePixelArray *pixels, const mint *at, mint channel,
             mint *n) {
            auto value = static_cast<Value>(*n);
            const mint status = (table->*getter)(pixels, at, channel, &value);
            *n = static_cast<mint>(value);
            return status;
          },
          [](const TorvanePixelTable *table, const TorvanePixelArray *pixels) {
            return static_cast<const void *>((table->*pointer)(pixels));
          },
          [](const void *data, size_t i) { return static_cast<mint>(static_cast<const Value *>(data)[i]); }};
}

using Table = TorvanePixelTable;
const Kind kKinds[] = {
    kindOf<uint8_t, &Table::setBit, &Table::getBit, &Table::bits>(TORVANE_PIXEL_BIT),
    kindOf<uint8_t, &Table::setByte, &Table::getByte, &Table::bytes>(TORVANE_PIXEL_BYTE),
    kindOf<uint16_t, &Table::setBit16, &Table::getBit16, &Table::bit16s>(TORVANE_PIXEL_BIT16),
    kindOf<float, &Table::setReal32, &Table::getReal32, &Table::real32s>(TORVANE_PIXEL_REAL32),
    kindOf<mreal, &Table::setReal64, &Table::getReal64, &Table::real64s>(TORVANE_PIXEL_REAL64),
};

mint valueOf(const Kind &kind, mint n) { return kind.kind == TORVANE_PIXEL_BIT ? n % 2 : n; }

// A host's raster, with red values around its own.
class Raster {
public:
  Raster(const Kind &kind, const std::vector<mint> &extents, mint channels, mint interleaved)
      : count(size_t(channels)), width(kind.width) {
    for (const mint extent : extents) count *= size_t(extent);
    bytes.assign((count + 2 * kRed) * width, std::byte{0xA5});
    pixels = {mint(extents.size()), kind.kind, channels, interleaved, {0, 0, 0}, bytes.data() + kRed * width};
    std::copy(extents.begin(), extents.end(), pixels.dimensions);
  }
  bool hasRedZones() const {
    const auto red = [](std::byte b) { return b == std::byte{0xA5}; };
    const ptrdiff_t zone = ptrdiff_t(kRed * width);
    return std::all_of(bytes.begin(), bytes.begin() + zone, red) &&
           std::all_of(bytes.end() - zone, bytes.end(), red);
  }
  TorvanePixelArray pixels;
  size_t count;

private:
  static constexpr size_t kRed = 4;
  size_t width;
  std::vector<std::byte> bytes;
};

class RecordPixels : public WithRecord {
protected:
  const TorvanePixelTable *const table = record->pixels;
};

const std::vector<mint> kRasters[] = {{1, 1}, {3, 4}, {2, 3, 4}, {3, 1, 2}};

// The offsets are reckoned by counting: values lie in the order in which these loops meet them.
template <class Visit>
void inStorageOrder(const std::vector<mint> &extents, mint channels, bool interleaved, Visit visit) {
  const mint slices = extents.size() == 3 ? extents[0] : 1;
  const mint rows = extents[extents.size() - 2], columns = extents[extents.size() - 1];
  for (mint outer = 1; outer <= (interleaved ? 1 : channels); ++outer)
    for (mint slice = 1; slice <= slices; ++slice)
      for (mint row = 1; row <= rows; ++row)
        for (mint column = 1; column <= columns; ++column)
          for (mint inner = 1; inner <= (interleaved ? channels : 1); ++inner) {
            std::vector<mint> at = {row, column};
            if (extents.size() == 3) at.insert(at.begin(), slice);
            visit(at, interleaved ? inner : outer);
          }
}

TEST_F(RecordPixels, ValuesAreWrittenAndReadWhereTheyLie) {
  for (const Kind &kind : kKinds)
    for (const std::vector<mint> &extents : kRasters)
      for (const mint channels : {1, 3})
        for (const mint interleaved : {0, 1}) {
          Raster raster(kind, extents, channels, interleaved);
          mint n = 0;
          inStorageOrder(extents, channels, interleaved != 0, [&](const std::vector<mint> &at, mint channel) {
            ASSERT_EQ(kind.set(table, &raster.pixels, at.data(), channel, valueOf(kind, ++n)), 0);
          });
          ASSERT_EQ(size_t(n), raster.count);
          for (size_t i = 0; i < raster.count; ++i)
            EXPECT_EQ(kind.at(raster.pixels.data, i), valueOf(kind, mint(i) + 1)) << i;
          EXPECT_TRUE(raster.hasRedZones());
          n = 0;
          inStorageOrder(extents, channels, interleaved != 0, [&](std::vector<mint> at, mint channel) {
            ++n;
            for (const bool fromTheEnd : {false, true}) {
              if (fromTheEnd)
                for (size_t i = 0; i < at.size(); ++i) at[i] -= extents[i] + 1;
              mint value = 77;
              ASSERT_EQ(kind.get(table, &raster.pixels, at.data(), channel, &value), 0);
              EXPECT_EQ(value, valueOf(kind, n));
            }
          });
        }
}

TEST_F(RecordPixels, BitsAreStoredAsZeroOrOne) {
  Raster raster(kKinds[0], {1, 1}, 1, 0);
  const mint at[] = {1, 1};
  EXPECT_EQ(table->setBit(&raster.pixels, at, 1, 255), 0);
  EXPECT_EQ(table->bits(&raster.pixels)[0], 1);
  EXPECT_EQ(table->setBit(&raster.pixels, at, 1, 0), 0);
  EXPECT_EQ(table->bits(&raster.pixels)[0], 0);
}

TEST_F(RecordPixels, GettersTellTheFields) {
  for (const Kind &kind : kKinds) {
    const Raster flat(kind, {3, 4}, 2, 1), deep(kind, {2, 3, 4}, 5, 0);
    for (const Raster *raster : {&flat, &deep}) {
      const TorvanePixelArray *pixels = &raster->pixels;
      const bool isDeep = raster == &deep;
      EXPECT_EQ(table->rank(pixels), isDeep ? 3 : 2);
      EXPECT_EQ(table->kind(pixels), kind.kind);
      EXPECT_EQ(table->channelCount(pixels), isDeep ? 5 : 2);
      EXPECT_EQ(table->rowCount(pixels), 3);
      EXPECT_EQ(table->columnCount(pixels), 4);
      EXPECT_EQ(table->sliceCount(pixels), isDeep ? 2 : 1);
      EXPECT_EQ(table->interleaved(pixels), isDeep ? 0 : 1);
      EXPECT_EQ(table->pixelCount(pixels), isDeep ? 24 : 12);
      EXPECT_EQ(table->valueCount(pixels), isDeep ? 120 : 24);
      EXPECT_EQ(table->valueSize(pixels), mint(kind.width));
      EXPECT_EQ(table->data(pixels), pixels->data);
      for (const Kind &other : kKinds)
        EXPECT_EQ(other.data(table, pixels), other.kind == kind.kind ? pixels->data : nullptr);
    }
  }
}

TEST_F(RecordPixels, KindOfFiveOrAboveIsNone) {
  Raster raster(kKinds[1], {1, 1}, 1, 0);
  for (const mint kind : {5, 6, INT32_MAX}) {
    raster.pixels.kind = kind;
    EXPECT_EQ(table->kind(&raster.pixels), -1);
    EXPECT_EQ(table->valueSize(&raster.pixels), -1);
  }
}

TEST_F(RecordPixels, NullArrayGivesMinusOneAndNull) {
  for (const auto getter :
       {table->rank, table->kind, table->channelCount, table->rowCount, table->columnCount, table->sliceCount,
        table->interleaved, table->pixelCount, table->valueCount, table->valueSize})
    EXPECT_EQ(getter(nullptr), -1);
  EXPECT_EQ(table->data(nullptr), nullptr);
  const mint at[] = {1, 1};
  for (const Kind &kind : kKinds) {
    mint value = 77;
    EXPECT_EQ(kind.data(table, nullptr), nullptr);
    EXPECT_EQ(kind.set(table, nullptr, at, 1, 1), -1);
    EXPECT_EQ(kind.get(table, nullptr, at, 1, &value), -1);
    EXPECT_EQ(value, 77);
  }
}

TEST_F(RecordPixels, WrongKindGivesOneAndWrongPlaceThree) {
  struct Wrong {
    std::vector<mint> at;
    mint channel;
  };
  const Wrong wrongs[] = {{{0, 1, 1}, 1}, {{3, 1, 1}, 1}, {{-3, 1, 1}, 1}, {{1, 0, 1}, 1},
                          {{1, 4, 1}, 1}, {{1, 1, 5}, 1}, {{1, 1, 0}, 1},  {{1, 1, INT32_MIN}, 1},
                          {{1, 1, 1}, 0}, {{1, 1, 1}, 3}, {{1, 1, 1}, -1}, {{1, 1, 1}, INT32_MIN}};
  for (const Kind &kind : kKinds) {
    Raster raster(kind, {2, 3, 4}, 2, 1);
    const std::vector<mint> first = {1, 1, 1};
    for (const Kind &other : kKinds) {
      mint value = 77;
      const mint expected = other.kind == kind.kind ? 0 : 1;
      EXPECT_EQ(other.set(table, &raster.pixels, first.data(), 1, 1), expected);
      EXPECT_EQ(other.get(table, &raster.pixels, first.data(), 1, &value), expected);
      EXPECT_EQ(value, expected == 0 ? 1 : 77);
    }
    for (const Wrong &wrong : wrongs) {
      mint value = 77;
      EXPECT_EQ(kind.set(table, &raster.pixels, wrong.at.data(), wrong.channel, 1), 3) << wrong.at[0];
      EXPECT_EQ(kind.get(table, &raster.pixels, wrong.at.data(), wrong.channel, &value), 3) << wrong.at[0];
      EXPECT_EQ(value, 77);
    }
    EXPECT_TRUE(raster.hasRedZones());
  }
}

TEST_F(RecordPixels, RankOtherThanTwoAndThreeIsNoRaster) {
  Raster raster(kKinds[4], {1, 1, 1}, 1, 0);
  const mint at[] = {1, 1, 1, 1};
  for (const mint rank : {-1, 0, 1, 4, INT32_MAX}) {
    raster.pixels.rank = rank;
    mreal value = 0;
    EXPECT_EQ(table->rank(&raster.pixels), rank);
    for (const auto getter :
         {table->rowCount, table->columnCount, table->sliceCount, table->pixelCount, table->valueCount})
      EXPECT_EQ(getter(&raster.pixels), -1);
    EXPECT_EQ(table->getReal64(&raster.pixels, at, 1, &value), 3);
    EXPECT_EQ(table->setReal64(&raster.pixels, at, 1, value), 3);
  }
}

TEST_F(RecordPixels, ServicesOfAHostAreNotThere) {
  for (const TorvaneHostService service : table->services1to3) EXPECT_EQ(service(), 6);
  EXPECT_EQ(table->service14(), 6);
  EXPECT_EQ(table->service5(), 0);
  EXPECT_EQ(table->service7(), 0);
  table->service4();
  table->service6();
}

class RecordNumeric : public WithRecord {
protected:
  // Made without the allocator: a field is read where it stands.
  MNumericArray array = {0, extents, 2, 0, 0, TORVANE_ELEMENT_INTEGER16, 4, elements, 3};
  mint extents[2] = {2, 2};
  int16_t elements[4] = {1, 200, -3, 400};
};

TEST_F(RecordNumeric, BothTablesReadTheFields) {
  for (const TorvaneNumericTable *table : {record->numeric, record->numericSecond}) {
    EXPECT_EQ(table->refCount(&array), 3);
    EXPECT_EQ(table->rank(&array), 2);
    EXPECT_EQ(table->dimensions(&array), extents);
    EXPECT_EQ(table->elementCount(&array), 4);
    EXPECT_EQ(table->data(&array), elements);
    for (mint tag = -2; tag < 20; ++tag) {
      array.elementType = tag;
      EXPECT_EQ(table->elementType(&array), tag >= 1 && tag <= 12 ? tag : 0);
    }
  }
}

TEST_F(RecordNumeric, NullArrayAnswersZero) {
  for (const TorvaneNumericTable *table : {record->numeric, record->numericSecond}) {
    EXPECT_EQ(table->refCount(nullptr), 0);
    EXPECT_EQ(table->elementType(nullptr), 0);
    EXPECT_EQ(table->rank(nullptr), 0);
    EXPECT_EQ(table->dimensions(nullptr), nullptr);
    EXPECT_EQ(table->elementCount(nullptr), 0);
    EXPECT_EQ(table->data(nullptr), nullptr);
  }
}

TEST_F(RecordNumeric, MakingDeletingAndCloningAreTheHosts) {
  for (const TorvaneNumericTable *table : {record->numeric, record->numericSecond}) {
    EXPECT_EQ(table->newArray(), 6);
    EXPECT_EQ(table->clone(), 6);
    EXPECT_EQ(table->service4(), 0);
    table->deleteArray();
    table->service5();
  }
}

constexpr mint kCheck = 1, kClipAndCheck = 2;

TEST_F(RecordNumeric, ConversionFillsANewArrayOrTheOneInTheSlot) {
  for (const TorvaneNumericTable *table : {record->numeric, record->numericSecond}) {
    MNumericArray *result = nullptr;
    ASSERT_EQ(table->convert(&result, &array, TORVANE_ELEMENT_REAL32, kCheck, 0), 0);
    MNumericArray *const held = result;
    EXPECT_EQ(table->elementType(result), TORVANE_ELEMENT_REAL32);
    EXPECT_EQ(static_cast<const float *>(table->data(result))[3], 400.0f);
    elements[3] = 500;
    ASSERT_EQ(table->convert(&result, &array, TORVANE_ELEMENT_REAL32, kCheck, 0), 0);
    EXPECT_EQ(result, held);
    EXPECT_EQ(static_cast<const float *>(table->data(result))[3], 500.0f);
    elements[3] = 400;
    // A numeric array has the layout of a tensor, and goes as one.
    record->deleteTensor(reinterpret_cast<MTensor *>(result));
  }
}

TEST_F(RecordNumeric, ConversionIsRefusedWithOneFourOrSixAndAnEmptySlotStaysEmpty) {
  for (const TorvaneNumericTable *table : {record->numeric, record->numericSecond}) {
    MNumericArray *result = nullptr;
    for (const mint type : {0, 13, -1})
      EXPECT_EQ(table->convert(&result, &array, type, kCheck, 0), 1) << type;
    EXPECT_EQ(table->convert(&result, &array, TORVANE_ELEMENT_REAL64, kCheck, -0.5), 4);
    for (const mint method : {0, 9, -1})
      EXPECT_EQ(table->convert(&result, &array, TORVANE_ELEMENT_REAL64, method, 0), 6) << method;
    EXPECT_EQ(table->convert(&result, nullptr, TORVANE_ELEMENT_REAL64, kCheck, 0), 6);
    EXPECT_EQ(table->convert(nullptr, &array, TORVANE_ELEMENT_REAL64, kCheck, 0), 6);
    EXPECT_EQ(table->convert(&result, &array, TORVANE_ELEMENT_INTEGER8, kCheck, 0), 6) << "200 does not pass";
    EXPECT_EQ(result, nullptr);
    ASSERT_EQ(table->convert(&result, &array, TORVANE_ELEMENT_INTEGER8, kClipAndCheck, 0), 0);
    EXPECT_EQ(static_cast<const int8_t *>(table->data(result))[1], 127);
    MNumericArray *const held = result;
    EXPECT_EQ(table->convert(&result, &array, TORVANE_ELEMENT_INTEGER8, kCheck, 0), 6);
    EXPECT_EQ(result, held);
    record->deleteTensor(reinterpret_cast<MTensor *>(result));
  }
}

// Decimal digits that may be lost: 0.1 is no Real32, but near one.
TEST_F(RecordNumeric, DigitsLetValuesPassThatAreNear) {
  mreal tenth[] = {0.1};
  MNumericArray source = {0, extents, 1, TORVANE_TYPE_REAL, 0, TORVANE_ELEMENT_REAL64, 1, tenth, 1};
  extents[0] = 1;
  MNumericArray *result = nullptr;
  EXPECT_EQ(record->numeric->convert(&result, &source, TORVANE_ELEMENT_REAL32, kCheck, 0), 6);
  ASSERT_EQ(record->numeric->convert(&result, &source, TORVANE_ELEMENT_REAL32, kCheck, 10), 0);
  EXPECT_EQ(static_cast<const float *>(record->numeric->data(result))[0], 0.1f);
  record->deleteTensor(reinterpret_cast<MTensor *>(result));
}

} // namespace

} // namespace torvane::test
