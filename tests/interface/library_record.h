// A library-data record for tests, and tensors that are reached through it alone, as by a compiled library.
#pragma once

#include <torvane/library_data.h>

#include <gtest/gtest.h>

#include <vector>

namespace torvane::test {

class WithRecord : public testing::Test {
protected:
  explicit WithRecord(mint version = 5) : record(TorvaneLibraryData_new(version)) {}
  ~WithRecord() override {
    for (MTensor *tensor : made) record->deleteTensor(tensor);
    TorvaneLibraryData_free(record);
  }

  // Deleted at the end of the test.
  MTensor *keep(MTensor *tensor) {
    made.push_back(tensor);
    return tensor;
  }
  MTensor *newTensor(mint type, const std::vector<mint> &extents) {
    MTensor *tensor = nullptr;
    EXPECT_EQ(record->newTensor(type, mint(extents.size()), extents.data(), &tensor), 0);
    return keep(tensor);
  }
  MTensor *integers(const std::vector<mint> &extents, const std::vector<mint> &values) {
    MTensor *tensor = newTensor(TORVANE_TYPE_INTEGER, extents);
    std::copy(values.begin(), values.end(), record->integerData(tensor));
    return tensor;
  }
  MTensor *reals(const std::vector<mint> &extents, const std::vector<mreal> &values) {
    MTensor *tensor = newTensor(TORVANE_TYPE_REAL, extents);
    std::copy(values.begin(), values.end(), record->realData(tensor));
    return tensor;
  }

  std::vector<mint> extentsOf(const MTensor *tensor) const {
    const mint *first = record->dimensions(tensor);
    return std::vector<mint>(first, first + record->rank(tensor));
  }
  std::vector<mint> valuesOf(const MTensor *tensor) const {
    const mint *first = record->integerData(tensor);
    return first != nullptr ? std::vector<mint>(first, first + record->elementCount(tensor))
                            : std::vector<mint>();
  }
  std::vector<mreal> realsOf(const MTensor *tensor) const {
    const mreal *first = record->realData(tensor);
    return first != nullptr ? std::vector<mreal>(first, first + record->elementCount(tensor))
                            : std::vector<mreal>();
  }

  TorvaneLibraryData *const record;

private:
  std::vector<MTensor *> made;
};

} // namespace torvane::test
