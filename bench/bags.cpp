// Appending in a loop, as compiled code does: the function by name beside std::vector's push_back behind a
// pointer to a function, both without knowing how many elements come, both in this process. Rounds alternate
// and the best round of each counts. Prints nanoseconds an element, and our ratio to the vector; then the
// same for reading all.
//
//   bench_bags [rounds]
#include <torvane/torvane.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <vector>

namespace {

constexpr mint kElements = 1000000;

double secondsSince(std::chrono::steady_clock::time_point start) {
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

struct Functions {
  explicit Functions(const TorvaneLibraryData *record)
      : bag(record->runtime->lookupRuntimeFunction("Bag")),
        stuff(record->runtime->lookupRuntimeFunction("StuffBagScalar")),
        part(record->runtime->lookupRuntimeFunction("BagPart")) {}
  RuntimeFunctionHandler bag, stuff, part;
};

struct Times {
  double append = 1e300, read = 1e300;
  void least(double appended, double wasRead) {
    append = std::min(append, appended);
    read = std::min(read, wasRead);
  }
};

// The bags of a round go with the reset.
template <class Element>
void timeBag(TorvaneLibraryData *record, const Functions &functions, mint type, Times *times) {
  mint number = 0, all = TORVANE_PART_ALL;
  Element element = {};
  MTensor *slot = nullptr;
  void *const bagArguments[] = {&type}, *const stuffArguments[] = {&number, &element};
  void *const partArguments[] = {&number, &all};
  functions.bag(record, 1, bagArguments, &number);
  auto start = std::chrono::steady_clock::now();
  for (mint i = 0; i < kElements; ++i)
    if (functions.stuff(record, 2, stuffArguments, nullptr) != 0) std::abort();
  const double appended = secondsSince(start);
  start = std::chrono::steady_clock::now();
  if (functions.part(record, 2, partArguments, &slot) != 0) std::abort();
  times->least(appended, secondsSince(start));
  MTensor_delete(slot);
  record->runtime->resetState(record);
}

template <class Element> void pushBack(std::vector<Element> *vector, const Element *element) {
  vector->push_back(*element);
}

template <class Element> void timeVector(Times *times) {
  void (*volatile pointer)(std::vector<Element> *, const Element *) = pushBack<Element>;
  const auto push = pointer;
  std::vector<Element> vector;
  const Element element = {};
  auto start = std::chrono::steady_clock::now();
  for (mint i = 0; i < kElements; ++i) push(&vector, &element);
  const double appended = secondsSince(start);
  start = std::chrono::steady_clock::now();
  std::vector<Element> copy(vector);
  asm volatile("" : : "r"(copy.data()) : "memory");
  times->least(appended, secondsSince(start));
}

template <class Element> void compare(TorvaneLibraryData *record, const char *name, mint type, int rounds) {
  const Functions functions(record);
  Times ours, theirs;
  for (int i = 0; i < rounds; ++i) {
    timeBag<Element>(record, functions, type, &ours);
    timeVector<Element>(&theirs);
  }
  const double scale = 1e9 / kElements;
  std::printf("%-8s append %6.2f  vector %6.2f  ratio %5.2f    read all %6.2f  copy %6.2f  ratio %5.2f\n",
              name, ours.append * scale, theirs.append * scale, ours.append / theirs.append,
              ours.read * scale, theirs.read * scale, ours.read / theirs.read);
}

} // namespace

int main(int count, char **arguments) {
  const int rounds = count > 1 ? std::atoi(arguments[1]) : 20;
  TorvaneLibraryData *record = TorvaneLibraryData_new(5);
  compare<mint>(record, "integer", TORVANE_TYPE_INTEGER, rounds);
  compare<mreal>(record, "real", TORVANE_TYPE_REAL, rounds);
  compare<mcomplex>(record, "complex", TORVANE_TYPE_COMPLEX, rounds);
  TorvaneLibraryData_free(record);
  return 0;
}
