// Parts of tensors, read and written, beside nested loops over the same elements and Eigen's index lists.
// Results are reused.
#include "parts_peers.h"
#include "table.h"

#include <torvane/torvane.h>

#include <algorithm>
#include <cstdlib>
#include <numeric>
#include <random>
#include <string>

using bench::repeated;
using bench::Run;

namespace {

using Words = std::vector<mint>;

std::mt19937 generator(11);

struct Selector {
  mint kind;
  Words words; // as the caller gives them
};
Selector at(mint position) { return {TORVANE_PART_POSITION, {position}}; }
Selector all() { return {TORVANE_PART_ALL, {}}; }
Selector span(mint start, mint end, mint step = 1) { return {TORVANE_PART_SPAN, {start, end, step}}; }
Selector list(mint count, mint extent) {
  Words words(size_t(count), 0);
  for (mint &word : words) word = mint(generator() % uint32_t(extent)) + 1;
  return {TORVANE_PART_LIST, words};
}

struct Case {
  const char *name;
  Words extents;
  std::vector<Selector> selectors;
};

// Positions of one dimension, from 0.
Words positionsOf(const Selector &selector, mint extent) {
  const Words &words = selector.words;
  Words positions;
  if (selector.kind == TORVANE_PART_ALL) {
    positions.resize(size_t(extent));
    std::iota(positions.begin(), positions.end(), 0);
  } else if (selector.kind == TORVANE_PART_SPAN) {
    for (mint i = words[0]; words[2] > 0 ? i <= words[1] : i >= words[1]; i += words[2])
      positions.push_back(i - 1);
  } else {
    for (const mint word : words) positions.push_back(word - 1);
  }
  return positions;
}

PlainSelection plainOf(const Case &of) {
  PlainSelection plain = {{{0}, {0}, {0}}, 0, 0, 1};
  ptrdiff_t stride = 1;
  for (size_t d = of.extents.size(); d-- > 0; stride *= of.extents[d]) {
    const Selector selector = d < of.selectors.size() ? of.selectors[d] : all();
    const Words positions = positionsOf(selector, of.extents[d]);
    if (d + 1 < of.extents.size()) {
      plain.outer[d].clear();
      for (const mint position : positions) plain.outer[d].push_back(position * stride);
      continue;
    }
    plain.count = ptrdiff_t(positions.size());
    if (selector.kind == TORVANE_PART_LIST) {
      plain.listed.assign(selector.words.begin(), selector.words.end());
    } else {
      plain.first = positions[0];
      if (positions.size() > 1) plain.step = positions[1] - positions[0];
    }
  }
  return plain;
}

class Arguments {
public:
  explicit Arguments(const Case &of) {
    for (const Selector &selector : of.selectors) {
      kinds.push_back(selector.kind);
      const mint length = mint(selector.words.size());
      const bool isVector = selector.kind == TORVANE_PART_LIST || selector.kind == TORVANE_PART_SPAN;
      tensors.push_back(
          isVector ? MTensor_newCopyFromDataArray(TORVANE_TYPE_INTEGER, 1, &length, selector.words.data())
                   : nullptr);
      rank -= selector.kind == TORVANE_PART_POSITION;
    }
    rank += mint(of.extents.size());
    for (size_t i = 0; i < kinds.size(); ++i)
      specs.push_back(kinds[i] == TORVANE_PART_POSITION
                          ? static_cast<void *>(const_cast<mint *>(of.selectors[i].words.data()))
                          : &tensors[i]);
  }
  ~Arguments() {
    for (MTensor *tensor : tensors)
      if (tensor != nullptr) MTensor_delete(tensor);
  }
  Arguments(const Arguments &) = delete;
  Arguments &operator=(const Arguments &) = delete;

  mint get(MTensor **result, const MTensor *source) const {
    return MTensor_getParts(*result, result, source, rank, mint(kinds.size()), kinds.data(), specs.data());
  }
  mint set(MTensor *target, const MTensor *source) const {
    return MTensor_setParts(target, source, rank, mint(kinds.size()), kinds.data(), specs.data());
  }

private:
  mint rank = 0;
  Words kinds;
  std::vector<MTensor *> tensors;
  std::vector<void *> specs;
};

// Eigen has lists of rows and columns of a matrix.
template <class T> Run eigenRun(T *to, const T *from, const Case &of) {
  if constexpr (sizeof(T) == sizeof(double))
    if (of.extents.size() == 2 && of.selectors.size() == 2)
      return repeated([=, rows = positionsOf(of.selectors[0], of.extents[0]),
                       columns = positionsOf(of.selectors[1], of.extents[1])] {
        eigenTake(to, from, of.extents[0], of.extents[1], rows, columns);
      });
  return {};
}

template <class T> void compare(const Case &of, mint type) {
  MTensor *whole = MTensor_newAllocatedCommon(type, mint(of.extents.size()), of.extents.data(), 0);
  auto *elements = static_cast<T *>(whole->data);
  std::iota(elements, elements + whole->elementCount, T(0));
  const Arguments arguments(of);
  MTensor *part = nullptr;
  if (arguments.get(&part, whole) != 0) std::abort();
  const PlainSelection plain = plainOf(of);
  std::vector<T> taken(size_t(part->elementCount));
  plainTake(taken.data(), elements, plain);
  if (!std::equal(taken.begin(), taken.end(), static_cast<const T *>(part->data))) std::abort();
  const std::string name = std::string(of.name) + (sizeof(T) == sizeof(mint) ? ", integers" : "");
  const double count = part->elementCount, bytes = sizeof(T) * count;
  const bench::Work work = {bytes, bytes};
  bench::compare({"get " + name, count, work},
                 {{"ours", repeated([&] { arguments.get(&part, whole); })},
                  {"loops", repeated([&] { plainTake(taken.data(), elements, plain); })},
                  {"Eigen", eigenRun(taken.data(), elements, of)}});
  bench::compare({"set " + name, count, work},
                 {{"ours", repeated([&] { arguments.set(whole, part); })},
                  {"loops", repeated([&] { plainPut(elements, taken.data(), plain); })}});
  MTensor_delete(whole);
  MTensor_delete(part);
}

} // namespace

int main(int argc, char **argv) {
  bench::start("parts", "ns an element of the part", argc, argv, 101);
  InitializeRuntimeLibrary();
  const Case cases[] = {
      {"10 of 100, list", {100}, {list(10, 100)}},
      {"1e3 of 1e4, list", {10000}, {list(1000, 10000)}},
      {"1e6 of 1e6, list", {1000000}, {list(1000000, 1000000)}},
      {"10 of 100, span", {100}, {span(11, 20)}},
      {"5e3 of 1e4, span by 2", {10000}, {span(1, 10000, 2)}},
      {"1e4, backwards", {10000}, {span(10000, 1, -1)}},
      {"row of 10 x 10", {10, 10}, {at(3), all()}},
      {"column of 10 x 10", {10, 10}, {all(), at(3)}},
      {"row of 1000 x 1000", {1000, 1000}, {at(3), all()}},
      {"column of 1000 x 1000", {1000, 1000}, {all(), at(3)}},
      {"500 rows of 1000 x 1000", {1000, 1000}, {list(500, 1000), all()}},
      {"500 rows of 1000 x 8", {1000, 8}, {list(500, 1000), all()}},
      {"500 columns of 1000 x 1000", {1000, 1000}, {all(), list(500, 1000)}},
      {"4 columns of 1000 x 8", {1000, 8}, {all(), list(4, 8)}},
      {"100 x 100 of 200 x 200, lists", {200, 200}, {list(100, 200), list(100, 200)}},
      {"100 x 100 of 200 x 200, spans", {200, 200}, {span(51, 150), span(51, 150)}},
      {"100 x 100 of 200 x 200, spans by 2", {200, 200}, {span(1, 200, 2), span(1, 200, 2)}},
      {"list, all, position of 50^3", {50, 50, 50}, {list(30, 50), all(), at(7)}},
      {"all, list, all of 50^3", {50, 50, 50}, {all(), list(30, 50), all()}},
      {"span, span, list of 50^3", {50, 50, 50}, {span(1, 25), span(50, 1, -2), list(30, 50)}},
      {"position, list, span, all of 20^4", {20, 20, 20, 20}, {at(4), list(15, 20), span(3, 18), all()}},
      {"list, all, all, span of 20^4", {20, 20, 20, 20}, {list(15, 20), all(), all(), span(3, 18)}},
      {"lists of 20^4", {20, 20, 20, 20}, {list(9, 20), list(9, 20), list(9, 20), list(9, 20)}},
  };
  for (const Case &of : cases) compare<double>(of, TORVANE_TYPE_REAL);
  // Of integers, what goes element by element: longer blocks are bytes.
  for (const Case &of : cases)
    if (of.extents.size() == 1) compare<mint>(of, TORVANE_TYPE_INTEGER);
}
