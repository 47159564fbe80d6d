#include "heap_size_class.h"

#include "heap_state.h"

namespace torvane {

namespace {

constexpr uint32_t kFirstClasses = 16; // 8 to 128 in steps of 8
constexpr uint32_t kGroupClasses = 8;

constexpr uint32_t cellBytes(uint32_t number) {
  if (number <= kFirstClasses) return 8 * number;
  const uint32_t group = (number - kFirstClasses - 1) / kGroupClasses;
  const uint32_t place = (number - kFirstClasses - 1) % kGroupClasses;
  return (128u << group) + (16u << group) * (place + 1);
}
static_assert(cellBytes(17) == 144 && cellBytes(40) == 1024 && cellBytes(kClassCount) == kMaxSmallBytes);

constexpr auto makeClassOfSize() {
  std::array<uint8_t, kMaxSmallBytes / 8 + 1> table{};
  uint32_t number = 0;
  for (uint32_t eighth = 1; eighth < table.size(); ++eighth) {
    if (8 * eighth > cellBytes(number)) ++number;
    table[eighth] = static_cast<uint8_t>(number);
  }
  return table;
}

} // namespace

constinit const std::array<uint8_t, kMaxSmallBytes / 8 + 1> classOfSize = makeClassOfSize();

uint32_t cellBytesOfClass(uint32_t number) { return cellBytes(number); }

void initializeSizeClass(SizeClass &sizeClass, ThreadHeap *heap, uint32_t number,
                         const AllocatorGeometry &geometry) {
  const bool bare = cellBytes(number) <= kMaxBareCellBytes;
  sizeClass.heap = heap;
  sizeClass.objectBytes = cellBytes(number);
  sizeClass.objectsPerSlab = bare ? geometry.slabBytes / sizeClass.objectBytes : kBigCellsPerSlab;
  sizeClass.slabDataBytes = bare ? geometry.slabBytes : kBigCellsPerSlab * sizeClass.objectBytes;
  sizeClass.slabPages = bare ? geometry.pagesPerSlab : 0;
}

} // namespace torvane
