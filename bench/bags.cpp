// Appending in a loop, as compiled code does: the function by name beside std::vector's push_back behind a
// pointer to a function, both without knowing how many elements come; then reading all, beside a copy of the
// vector.
#include "table.h"

#include <torvane/torvane.h>

#include <cstdlib>
#include <string>
#include <vector>

using bench::repeated;

namespace {

constexpr mint kElements = 1000000;

class Bags {
public:
  explicit Bags(TorvaneLibraryData *libraryData)
      : record(libraryData), bag(record->runtime->lookupRuntimeFunction("Bag")),
        stuff(record->runtime->lookupRuntimeFunction("StuffBagScalar")),
        part(record->runtime->lookupRuntimeFunction("BagPart")) {}

  // All bags go, and an empty one of the type comes.
  void begin(mint type) {
    void *const arguments[] = {&type};
    record->runtime->resetState(record);
    require(bag(record, 1, arguments, &number));
  }
  template <class Element> void append() {
    Element element = {};
    void *const arguments[] = {&number, &element};
    for (mint i = 0; i < kElements; ++i) require(stuff(record, 2, arguments, nullptr));
  }
  void read() {
    mint all = TORVANE_PART_ALL;
    void *const arguments[] = {&number, &all};
    MTensor *slot = nullptr;
    require(part(record, 2, arguments, &slot));
    MTensor_delete(slot);
  }

private:
  static void require(mint status) {
    if (status != 0) std::abort();
  }

  TorvaneLibraryData *record;
  RuntimeFunctionHandler bag, stuff, part;
  mint number = 0;
};

template <class Element> void pushBack(std::vector<Element> *vector, const Element *element) {
  vector->push_back(*element);
}

template <class Element> void append(std::vector<Element> *vector) {
  void (*volatile pointer)(std::vector<Element> *, const Element *) = pushBack<Element>;
  const auto push = pointer;
  const Element element = {};
  for (mint i = 0; i < kElements; ++i) push(vector, &element);
}

template <class Element> void compare(TorvaneLibraryData *record, const std::string &elements, mint type) {
  Bags bags(record);
  std::vector<Element> vector;
  const double bytes = double(sizeof(Element)) * kElements;
  bench::compare(
      {"append " + elements, kElements, {0, bytes}},
      {{"ours", repeated([&] { bags.append<Element>(); }), [&](int) { bags.begin(type); }},
       {"vector", repeated([&] { append(&vector); }), [&](int) { vector = std::vector<Element>(); }}});
  bags.begin(type);
  bags.append<Element>();
  vector.assign(kElements, {});
  bench::compare(
      {"read all " + elements, kElements, {bytes, bytes}},
      {{"ours", repeated([&] { bags.read(); })}, {"copy of a vector", repeated([&] {
                                                    const std::vector<Element> copy(vector);
                                                    asm volatile("" : : "r"(copy.data()) : "memory");
                                                  })}});
}

} // namespace

int main(int argc, char **argv) {
  bench::start("bags", "ns an element", argc, argv);
  TorvaneLibraryData *record = TorvaneLibraryData_new(5);
  compare<mint>(record, "integers", TORVANE_TYPE_INTEGER);
  compare<mreal>(record, "reals", TORVANE_TYPE_REAL);
  compare<mcomplex>(record, "complexes", TORVANE_TYPE_COMPLEX);
  TorvaneLibraryData_free(record);
}
