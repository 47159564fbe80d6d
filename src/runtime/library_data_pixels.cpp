// The table of pixel arrays of the record: rasters of a host's, read and written value by value. Null arrays,
// and sizes of another rank than 2 and 3, other than 2 and 3 answer -1, and pointers into null arrays are
// null.
//
// The channels of a pixel stand together, or there is a whole raster for each: pixel p, channel c of n
// channels and m pixels is value p * n + c of the one and c * m + p of the other, all from 0.
#include "library_data_tables.h"

namespace torvane {

namespace {

using Pixels = TorvanePixelArray;

constexpr mint kNoObject = -1;
constexpr mint kKindCount = 5;
constexpr mint kValueBytes[kKindCount] = {1, 1, 2, 4, 8};

bool isKind(mint kind) { return kind >= 0 && kind < kKindCount; }
bool isRaster(const Pixels *pixels) { return pixels != nullptr && (pixels->rank == 2 || pixels->rank == 3); }

// Rows and columns are the last two extents; slices stand before them, if there are any.
mint extentFromEnd(const Pixels *pixels, mint i) {
  return isRaster(pixels) ? pixels->dimensions[pixels->rank - i] : kNoObject;
}

mint rankOf(const Pixels *pixels) { return pixels != nullptr ? pixels->rank : kNoObject; }
mint kindOf(const Pixels *pixels) {
  return pixels != nullptr && pixels->kind < kKindCount ? pixels->kind : kNoObject;
}
mint channelCountOf(const Pixels *pixels) { return pixels != nullptr ? pixels->channelCount : kNoObject; }
mint rowCountOf(const Pixels *pixels) { return extentFromEnd(pixels, 2); }
mint columnCountOf(const Pixels *pixels) { return extentFromEnd(pixels, 1); }
mint sliceCountOf(const Pixels *pixels) {
  if (!isRaster(pixels)) return kNoObject;
  return pixels->rank == 3 ? pixels->dimensions[0] : 1;
}
mint interleavedOf(const Pixels *pixels) { return pixels != nullptr ? pixels->interleaved : kNoObject; }

ptrdiff_t countPixels(const Pixels *pixels) {
  return ptrdiff_t{sliceCountOf(pixels)} * rowCountOf(pixels) * columnCountOf(pixels);
}
mint pixelCountOf(const Pixels *pixels) {
  return isRaster(pixels) ? static_cast<mint>(countPixels(pixels)) : kNoObject;
}
mint valueCountOf(const Pixels *pixels) {
  return isRaster(pixels) ? static_cast<mint>(countPixels(pixels) * pixels->channelCount) : kNoObject;
}
mint valueSizeOf(const Pixels *pixels) {
  return pixels != nullptr && isKind(pixels->kind) ? kValueBytes[pixels->kind] : kNoObject;
}
void *dataOf(const Pixels *pixels) { return pixels != nullptr ? pixels->data : nullptr; }

template <class Value, mint kind> Value *valuesOf(const Pixels *pixels) {
  return pixels != nullptr && pixels->kind == kind ? static_cast<Value *>(pixels->data) : nullptr;
}

ptrdiff_t offsetOf(const Pixels *pixels, ptrdiff_t pixel, mint channel) {
  return pixels->interleaved != 0 ? pixel * pixels->channelCount + (channel - 1)
                                  : (channel - 1) * countPixels(pixels) + pixel;
}

// The place of a value, or why there is none.
template <class Value, mint kind>
mint findValue(const Pixels *pixels, const mint *position, mint channel, Value **place) {
  if (pixels == nullptr) return kNoObject;
  if (pixels->kind != kind) return kWrongType;
  if (!isRaster(pixels) || channel < 1 || channel > pixels->channelCount) return kWrongDimensions;
  const ptrdiff_t pixel = resolvePositions(pixels->rank, pixels->dimensions, position);
  if (pixel < 0) return kWrongDimensions;
  *place = static_cast<Value *>(pixels->data) + offsetOf(pixels, pixel, channel);
  return kSuccess;
}

template <class Value, mint kind>
mint getValue(const Pixels *pixels, const mint *position, mint channel, Value *value) {
  Value *place;
  const mint status = findValue<Value, kind>(pixels, position, channel, &place);
  if (status == kSuccess) *value = *place;
  return status;
}

// A bit is 0 or 1, whatever it was given as.
template <class Value, mint kind>
mint setValue(Pixels *pixels, const mint *position, mint channel, Value value) {
  Value *place;
  const mint status = findValue<Value, kind>(pixels, position, channel, &place);
  if (status == kSuccess) *place = kind == TORVANE_PIXEL_BIT ? static_cast<Value>(value != 0) : value;
  return status;
}

} // namespace

constexpr TorvanePixelTable kPixelTable = {
    .services1to3 = {refusedService, refusedService, refusedService},
    .service4 = ignoredService,
    .service5 = noService,
    .service6 = ignoredService,
    .service7 = noService,
    .rank = rankOf,
    .kind = kindOf,
    .channelCount = channelCountOf,
    .rowCount = rowCountOf,
    .columnCount = columnCountOf,
    .sliceCount = sliceCountOf,
    .service14 = refusedService,
    .interleaved = interleavedOf,
    .pixelCount = pixelCountOf,
    .valueCount = valueCountOf,
    .valueSize = valueSizeOf,
    .data = dataOf,
    .bits = valuesOf<uint8_t, TORVANE_PIXEL_BIT>,
    .bytes = valuesOf<uint8_t, TORVANE_PIXEL_BYTE>,
    .bit16s = valuesOf<uint16_t, TORVANE_PIXEL_BIT16>,
    .real32s = valuesOf<float, TORVANE_PIXEL_REAL32>,
    .real64s = valuesOf<mreal, TORVANE_PIXEL_REAL64>,
    .getBit = getValue<uint8_t, TORVANE_PIXEL_BIT>,
    .getByte = getValue<uint8_t, TORVANE_PIXEL_BYTE>,
    .getBit16 = getValue<uint16_t, TORVANE_PIXEL_BIT16>,
    .getReal32 = getValue<float, TORVANE_PIXEL_REAL32>,
    .getReal64 = getValue<mreal, TORVANE_PIXEL_REAL64>,
    .setBit = setValue<uint8_t, TORVANE_PIXEL_BIT>,
    .setByte = setValue<uint8_t, TORVANE_PIXEL_BYTE>,
    .setBit16 = setValue<uint16_t, TORVANE_PIXEL_BIT16>,
    .setReal32 = setValue<float, TORVANE_PIXEL_REAL32>,
    .setReal64 = setValue<mreal, TORVANE_PIXEL_REAL64>,
};

} // namespace torvane
