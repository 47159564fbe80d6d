#!/bin/bash
# tools/quality/dieharder.sh RAW_STREAM SECONDS METHOD [SEED [STREAM]]: runs the tests of the package dieharder, each
# at its usual size, on a method's raw stream. Each test begins the stream anew; one that takes longer than SECONDS
# is given up and said to be. TESTS in the environment names others than the usual ones.
set -u
raw_stream=$1 seconds=$2
shift 2
tests=${TESTS:-0 1 2 3 4 8 9 10 11 12 13 15 16 17 100 101 102 201 202 204 205 206 208 209}
echo "# $*: tests $tests, at most $seconds s each"
for number in $tests; do
  "$raw_stream" "$@" 2>/dev/null | timeout "$seconds" dieharder -g 200 -d "$number" |
    grep -E 'PASSED|WEAK|FAILED'
  [ "${PIPESTATUS[1]}" -ne 124 ] || echo "# test $number: given up after $seconds s"
done
