// The copy of a selection: its elements in row-major order on one side, where they stand by dimensions and
// selectors on the other.
//
// Dimensions become axes; those of one index vanish into the offset and regular neighbours that continue each
// other become one. Regular axes after the last list are a box. The axes before it are walked, and where the
// list is the last of all, its positions are one loop over blocks of fixed length.
#include "parts.h"

#include "box.h"

#include <string.h>

namespace torvane {

namespace {

// An axis takes `positions`, 1-based, or every index. Strides count bytes; a packed one of 0 repeats the
// source.
struct PartAxis {
  size_t count;
  const mint *positions;
  ptrdiff_t selected, packed;
};

using MoveListed = void (*)(char *selected, char *packed, size_t block, const PartAxis &outer,
                            const PartAxis &list);

ptrdiff_t offsetOf(const PartAxis &axis, size_t i) {
  const auto index = axis.positions == nullptr ? static_cast<ptrdiff_t>(i) : ptrdiff_t{axis.positions[i]} - 1;
  return index * axis.selected;
}

template <PartDirection kDirection> void moveBlock(char *selected, char *packed, size_t bytes) {
  if constexpr (kDirection == kExtract)
    memcpy(packed, selected, bytes);
  else
    memcpy(selected, packed, bytes);
}

// One list. Of neighbours into a run the strides are constants: no multiplication stands before a load.
template <size_t kBlock, PartDirection kDirection>
void moveOneListed(char *selected, char *packed, size_t block, const PartAxis &list) {
  const size_t bytes = kBlock == 0 ? block : kBlock;
  constexpr auto kStride = static_cast<ptrdiff_t>(kBlock);
  const mint *const end = list.positions + list.count;
  if (kBlock > 0 && list.selected == kStride && list.packed == kStride) {
    char *const first = selected - kStride;
    for (const mint *position = list.positions; position < end; ++position, packed += kStride)
      moveBlock<kDirection>(first + *position * kStride, packed, bytes);
    return;
  }
  for (const mint *position = list.positions; position < end; ++position, packed += list.packed)
    moveBlock<kDirection>(selected + (ptrdiff_t{*position} - 1) * list.selected, packed, bytes);
}

// A list at every index of the axis before it: where it is short, calls would cost more than it does.
template <size_t kBlock, PartDirection kDirection>
void moveListed(char *selected, char *packed, size_t block, const PartAxis &outerAxis,
                const PartAxis &listAxis) {
  const PartAxis outer = outerAxis, list = listAxis; // which no store of an element can change
  for (size_t i = 0; i < outer.count; ++i, packed += outer.packed)
    moveOneListed<kBlock, kDirection>(selected + offsetOf(outer, i), packed, block, list);
}

template <PartDirection kDirection> MoveListed moveListedFor(size_t block) {
  switch (block) {
  case 1:
    return moveListed<1, kDirection>;
  case 2:
    return moveListed<2, kDirection>;
  case 4:
    return moveListed<4, kDirection>;
  case 8:
    return moveListed<8, kDirection>;
  case 16:
    return moveListed<16, kDirection>;
  default:
    return moveListed<0, kDirection>;
  }
}

class PartCopy {
public:
  PartCopy(const PartShape &shape, mint packedCount, mint selectorCount, const PartSpec *specs) {
    addAxes(shape, packedCount, selectorCount, specs);
    block = shape.width;
    if (rank > 0 && isContiguous(axes[rank - 1])) block *= axes[--rank].count;
    for (listed = rank; listed > 0 && axes[listed - 1].positions == nullptr;) --listed;
  }

  void copy(char *selected, char *packed, PartDirection direction) const {
    const Leaf leaf = {direction, direction == kExtract ? moveListedFor<kExtract>(block)
                                                        : moveListedFor<kAssign>(block)};
    walk(0, selected + offset, packed, leaf);
  }

private:
  // As many axes of two and more indices as 2^31 elements have room for.
  static constexpr mint kAxes = 32;
  struct Leaf {
    PartDirection direction;
    MoveListed move;
  };

  PartAxis axes[kAxes];
  mint rank = 0, listed = 0; // axes in all, and those up to the last list
  ptrdiff_t offset = 0;
  size_t block = 0;

  bool isContiguous(const PartAxis &axis) const {
    const auto bytes = static_cast<ptrdiff_t>(block);
    return axis.positions == nullptr && axis.selected == bytes && axis.packed == bytes;
  }

  static bool continues(const PartAxis &outer, const PartAxis &inner) {
    const auto steps = static_cast<ptrdiff_t>(inner.count);
    return outer.positions == nullptr && inner.positions == nullptr &&
           outer.selected == steps * inner.selected && outer.packed == steps * inner.packed;
  }

  void add(const PartAxis &axis) {
    if (axis.count == 1)
      offset += offsetOf(axis, 0);
    else if (rank > 0 && continues(axes[rank - 1], axis))
      axes[rank - 1] = {axes[rank - 1].count * axis.count, nullptr, axis.selected, axis.packed};
    else
      axes[rank++] = axis;
  }

  void addSelector(const PartShape &shape, const PartSpec &selector, ptrdiff_t packed) {
    const auto stride = static_cast<ptrdiff_t>(shape.width) * selector.stride;
    const auto count = static_cast<size_t>(selector.count);
    if (selector.kind == TORVANE_PART_SPAN) {
      offset += (selector.positions[0] - 1) * stride;
      add({count, nullptr, count > 1 ? selector.positions[2] * stride : 0, packed}); // else any step at all
    } else {
      add({count, selector.kind == TORVANE_PART_ALL ? nullptr : selector.positions, stride, packed});
    }
  }

  // `length` is what one index of the axis spans in the selection. Where that is the whole source, or more,
  // the axis starts it over.
  void addAxes(const PartShape &shape, mint packedCount, mint selectorCount, const PartSpec *specs) {
    const auto width = static_cast<ptrdiff_t>(shape.width);
    int64_t length = 1;
    for (mint i = 0; i < selectorCount; ++i) length *= specs[i].count;
    for (mint i = selectorCount; i < shape.rank; ++i) length *= shape.dimensions[i];
    const auto packedStride = [&](intptr_t count) {
      length /= count;
      return length < packedCount ? static_cast<ptrdiff_t>(length) * width : 0;
    };
    for (mint i = 0; i < selectorCount; ++i) addSelector(shape, specs[i], packedStride(specs[i].count));
    ptrdiff_t stride =
        selectorCount > 0 ? width * specs[selectorCount - 1].stride : static_cast<ptrdiff_t>(length) * width;
    for (mint i = selectorCount; i < shape.rank; ++i) {
      const mint extent = shape.dimensions[i];
      stride /= extent;
      add({static_cast<size_t>(extent), nullptr, stride, packedStride(extent)});
    }
  }

  void copyBox(char *selected, char *packed, PartDirection direction) const {
    Box box;
    const bool extracts = direction == kExtract;
    for (const PartAxis *axis = axes + listed; axis < axes + rank; ++axis)
      box.add(axis->count, extracts ? axis->packed : axis->selected,
              extracts ? axis->selected : axis->packed);
    box.copy(extracts ? packed : selected, extracts ? selected : packed, block);
  }

  void walk(mint at, char *selected, char *packed, const Leaf &leaf) const {
    if (at == listed) return copyBox(selected, packed, leaf.direction);
    const PartAxis &axis = axes[at];
    if (at == rank - 1) return leaf.move(selected, packed, block, {1, nullptr, 0, 0}, axis);
    if (at == rank - 2 && listed == rank) return leaf.move(selected, packed, block, axis, axes[rank - 1]);
    for (size_t i = 0; i < axis.count; ++i, packed += axis.packed)
      walk(at + 1, selected + offsetOf(axis, i), packed, leaf);
  }
};

} // namespace

void copyParts(const PartShape &shape, char *selected, char *packed, mint packedCount, mint selectorCount,
               const PartSpec *specs, PartDirection direction) {
  PartCopy(shape, packedCount, selectorCount, specs).copy(selected, packed, direction);
}

} // namespace torvane
