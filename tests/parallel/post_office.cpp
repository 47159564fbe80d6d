#include "post_office.h"

#include "arrays/numeric_array.h"
#include "host_activities.h"
#include <torvane/torvane.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <string>

namespace torvane::test {

namespace {

uint32_t blockSizeOf(uint32_t seed) { return 1 + seed * 7919 % (seed % 11 == 0 ? 200000 : 1500); }

Parcel newParcel(uint32_t seed, uint32_t maker) {
  const mint extents[] = {3, 5};
  Parcel parcel = {seed,
                   maker,
                   static_cast<char *>(Malloc_fun(blockSizeOf(seed))),
                   to_string_UnsignedInteger32(seed),
                   realsOf({mint(10 + seed % 90)}, seed).release(),
                   Runtime_CreateNumericArray(TORVANE_ELEMENT_INTEGER16, 2, extents),
                   sparseOf(seed)};
  std::memset(parcel.block, int(seed & 127), blockSizeOf(seed));
  std::memset(parcel.array->data, int(seed & 127), 30);
  return parcel;
}

void openParcel(const Parcel &parcel) {
  const uint32_t size = blockSizeOf(parcel.seed);
  const char mark = char(parcel.seed & 127);
  EXPECT_EQ(std::count(parcel.block, parcel.block + size, mark), ptrdiff_t(size));
  EXPECT_EQ(parcel.text, std::to_string(parcel.seed));
  const auto *wide = static_cast<const char *>(parcel.array->data);
  EXPECT_EQ(std::count(wide, wide + 30, mark), 30);
  const Tensor tensor = realsOf({mint(10 + parcel.seed % 90)}, parcel.seed);
  MSparseArray *again = sparseOf(parcel.seed);
  Results expected, got;
  expected.tensor(tensor.get());
  got.tensor(parcel.tensor);
  expected.sparse(again);
  got.sparse(parcel.sparse);
  EXPECT_TRUE(got == expected) << parcel.seed;
  MSparseArray_delete(again);
  Free_fun(parcel.block);
  to_string_free(parcel.text);
  MTensor_delete(parcel.tensor);
  MNumericArray_delete(parcel.array);
  MSparseArray_delete(parcel.sparse);
}

} // namespace

void PostOffice::post(uint32_t seed, uint32_t maker) {
  const Parcel parcel = newParcel(seed, maker);
  const std::lock_guard guard(lock);
  parcels.push_back(parcel);
}

void PostOffice::collect(uint32_t reader) {
  if (const std::optional<Parcel> parcel = take(reader)) {
    openParcel(*parcel);
    ++openedParcels;
  }
}

std::optional<Parcel> PostOffice::take(uint32_t reader) {
  const std::lock_guard guard(lock);
  const auto found = std::find_if(parcels.begin(), parcels.end(),
                                  [reader](const Parcel &parcel) { return parcel.maker != reader; });
  if (found == parcels.end()) return std::nullopt;
  const Parcel parcel = *found;
  parcels.erase(found);
  return parcel;
}

} // namespace torvane::test
