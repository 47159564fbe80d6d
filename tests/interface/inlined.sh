#!/bin/bash
# inlined.sh WAY ROOT BUILD SCRATCH: loops over checked entries keep no call of them, neither with the bodies as a
# header (WAY header) nor as bitcode (WAY bitcode); only the raise is left, and the loops give the right sums. One
# entry returns by value, the other through pointers.
set -euo pipefail
way=$1 root=$2 build=$3 scratch=$4
mkdir -p "$scratch"
cd "$scratch"
entry=checked_binary_plus_Integer32_Integer32
pair=checked_binary_plus_ComplexReal64_ComplexReal64
flags=(-O2 -ffp-contract=off -fno-math-errno -I "$root/include")

case $way in
header)
  cat >loop.cpp <<EOF
#include <torvane/scalars_inline.hpp>
extern "C" int32_t sum(const int32_t *x, int32_t count) {
  int32_t total = 0;
  for (int32_t k = 0; k < count; ++k) total = torvane::inlined::$entry(total, x[k]);
  return total;
}
extern "C" double turn(const double *x, int32_t count) {
  double re = 0, im = 0;
  for (int32_t k = 0; k < count; ++k) torvane::inlined::$pair(&re, &im, re, im, x[k], -x[k]);
  return re / 2 - im / 2;
}
EOF
  clang++-19 -std=c++20 "${flags[@]}" -S -emit-llvm loop.cpp -o loop.ll
  ;;
bitcode)
  # It asks for nothing of the library but what the library exports.
  if llvm-nm-19 "$build/torvane_scalars.bc" | grep ' U _ZN7torvane'; then exit 1; fi
  cat >loop.c <<EOF
#include <torvane/scalars.h>
int32_t sum(const int32_t *x, int32_t count) {
  int32_t total = 0;
  for (int32_t k = 0; k < count; ++k) total = $entry(total, x[k]);
  return total;
}
double turn(const double *x, int32_t count) {
  double re = 0, im = 0;
  for (int32_t k = 0; k < count; ++k) $pair(&re, &im, re, im, x[k], -x[k]);
  return re / 2 - im / 2;
}
EOF
  clang-19 -std=c11 "${flags[@]}" -emit-llvm -c loop.c -o loop.bc
  llvm-link-19 loop.bc --only-needed --internalize "$build/torvane_scalars.bc" -o linked.bc
  opt-19 -O2 -S linked.bc -o loop.ll
  ;;
esac

for loop in sum turn; do
  sed -n "/^define .*@$loop(/,/^}/p" loop.ll >$loop.ll
  [ -s $loop.ll ]
  if grep -E "call .*@[A-Za-z_0-9]*($entry|$pair)" $loop.ll; then
    echo "the call remains"
    exit 1
  fi
done
grep -q 'llvm.sadd.with.overflow\|icmp' sum.ll # the check itself is in the loop

cat >main.c <<'EOF'
#include <stdint.h>
#include <torvane/failure.h>
int32_t sum(const int32_t *x, int32_t count);
double turn(const double *x, int32_t count);
int main(void) {
  const int32_t small[] = {1, 2, 39}, large[] = {2147483647, 1};
  if (sum(small, 3) != 42 || getExceptionActive() != 0) return 1;
  sum(large, 2);
  if (getExceptionActive() != 1) return 2;
  setExceptionActive(0);
  const double halves[] = {0.5, 1.5, 4}, huge[] = {2, 1.5e308, 1.5e308};
  if (turn(halves, 3) != 6 || getExceptionActive() != 0) return 3;
  if (turn(huge, 3) != 1.5e308 || getExceptionActive() != 6) return 4; // the failing sum stores nothing
  return 0;
}
EOF
clang-19 "${flags[@]}" main.c loop.ll -o program -L "$build" -lTorvaneRTL_Minimal -Wl,-rpath,"$build" 2>link.log || { cat link.log; exit 1; }
./program
