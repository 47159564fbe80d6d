// Writes the initial row of the cellular automaton to standard output, as the table of
// src/random/cellular_automaton_cells.cpp.
//
// The first four words and the last three are those that the generator has always begun and ended with. Those
// between have nothing up their sleeve: they are the fraction of pi, 32 bits a word, from its first bit on.
// Pi is summed in fixed point by Machin's formula, pi = 16 arctan(1/5) - 4 arctan(1/239).
#include <cstdint>
#include <cstdio>
#include <initializer_list>
#include <vector>

namespace {

constexpr int kGiven = 7;
constexpr int kWords = 160;
constexpr int kGuardWords = 2; // for what 4,000 divisions cut off
constexpr int kFractionWords = kWords - kGiven + kGuardWords;

// Word 0 is the whole part, the others the fraction, the highest first.
using Fixed = std::vector<uint32_t>;

bool isZero(const Fixed &x) {
  for (uint32_t word : x)
    if (word != 0) return false;
  return true;
}

void divide(Fixed &x, uint32_t divisor) {
  uint64_t rest = 0;
  for (uint32_t &word : x) {
    const uint64_t part = (rest << 32) | word;
    word = static_cast<uint32_t>(part / divisor);
    rest = part % divisor;
  }
}

void add(Fixed &sum, const Fixed &x) {
  uint64_t carry = 0;
  for (size_t i = sum.size(); i-- > 0;) {
    carry += uint64_t{sum[i]} + x[i];
    sum[i] = static_cast<uint32_t>(carry);
    carry >>= 32;
  }
}

// In two's complement: a negative sum that is added is subtracted.
Fixed negated(Fixed x) {
  for (uint32_t &word : x) word = ~word;
  Fixed one(x.size(), 0);
  one.back() = 1;
  add(x, one);
  return x;
}

// factor * arctan(1/n) = factor * (1/n - 1/(3 n^3) + 1/(5 n^5) - ...)
Fixed arctangentOfInverse(uint32_t factor, uint32_t n) {
  Fixed power(kFractionWords + 1, 0), sum(kFractionWords + 1, 0);
  power[0] = factor;
  divide(power, n);
  for (uint32_t k = 1; !isZero(power); k += 2) {
    Fixed term = power;
    divide(term, k);
    add(sum, k % 4 == 1 ? term : negated(term));
    divide(power, n * n);
  }
  return sum;
}

} // namespace

int main() {
  Fixed pi = arctangentOfInverse(16, 5);
  add(pi, negated(arctangentOfInverse(4, 239)));
  std::vector<uint32_t> row = {0xA888F710, 0x22E181BD, 0x2385A85E, 0x36087989};
  for (int i = 1; i <= kWords - kGiven; ++i) row.push_back(pi[static_cast<size_t>(i)]);
  for (uint32_t word : {0xB5EF628Eu, 0x14E82102u, 0x76047FFAu}) row.push_back(word);
  std::printf("// Written by tools/cells, which says where the words come from.\n"
              "#include \"cellular_automaton.h\"\n\nnamespace torvane {\n\n"
              "// clang-format off\nconst uint32_t initialCells[kInitialCellWords] = {\n");
  for (int i = 0; i < kWords; ++i)
    std::printf("%s0x%08X,%s", i % 8 == 0 ? "    " : " ", row[static_cast<size_t>(i)],
                i % 8 == 7 ? "\n" : "");
  std::printf("};\n// clang-format on\n\n} // namespace torvane\n");
}
