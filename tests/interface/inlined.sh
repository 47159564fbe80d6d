#!/bin/bash
# inlined.sh WAY ROOT BUILD SCRATCH: a loop over a checked entry keeps no call of it, neither with the bodies as a
# header (WAY header) nor as bitcode (WAY bitcode); only the raise is left, and the loop gives the right sum.
set -euo pipefail
way=$1 root=$2 build=$3 scratch=$4
mkdir -p "$scratch"
cd "$scratch"
entry=checked_binary_plus_Integer32_Integer32
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
EOF
  clang-19 -std=c11 "${flags[@]}" -emit-llvm -c loop.c -o loop.bc
  llvm-link-19 loop.bc --only-needed --internalize "$build/torvane_scalars.bc" -o linked.bc
  opt-19 -O2 -S linked.bc -o loop.ll
  ;;
esac

sed -n '/^define .*@sum(/,/^}/p' loop.ll >sum.ll
[ -s sum.ll ]
if grep -E "call .*@[A-Za-z_0-9]*$entry" sum.ll; then
  echo "the call remains"
  exit 1
fi
grep -q 'llvm.sadd.with.overflow\|icmp' sum.ll # the check itself is in the loop

cat >main.c <<'EOF'
#include <stdint.h>
#include <torvane/failure.h>
int32_t sum(const int32_t *x, int32_t count);
int main(void) {
  const int32_t small[] = {1, 2, 39}, large[] = {2147483647, 1};
  if (sum(small, 3) != 42 || getExceptionActive() != 0) return 1;
  sum(large, 2);
  return getExceptionActive() == 1 ? 0 : 2;
}
EOF
clang-19 "${flags[@]}" main.c loop.ll -o program -L "$build" -lTorvaneRTL_Minimal -Wl,-rpath,"$build" 2>link.log || { cat link.log; exit 1; }
./program
