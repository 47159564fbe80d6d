#!/bin/bash
# performance_page.sh PYTHON SOURCE: bench/run makes a page and plots of the lines that benchmarks print: rows and
# marks are where they belong, the same lines give the same files, a row above what was asked is named as such.
set -eu
python=$1 source=$2
work=$(mktemp -d) && trap 'rm -rf "$work"' EXIT
fail() { echo "$1"; exit 1; }

{
  printf '# processor\tone of a kind\n# load at start\t0.10\n# processors others used\t0.02\n'
  printf 'machine\tread 16 KiB\tns a byte\t1\t0.005\t-\t-\t-\t-\t\n'
  printf 'machine\tcopied 16 KiB\tns a byte\t1\t0.004\t-\t-\t-\t-\t\n'
  printf 'sample\tplus\tns an element\t1000\t0.12\tEigen\t1.2\t1.5\t1.05\tplain=0.15;Eigen=0.1\n'
  printf 'elementwise\tplus\tns an element\t100000\t0.5\tplain\t1.054\t1.1\t1.05\tplain=0.4744\n'
  printf 'sample\tplus of 10 elements, a call\tns an element\t1\t21\t-\t-\t-\t20ns\t\n'
  printf 'sample\t<odd> & "quoted"\tns an element\t7\t1\tpeer=b\t0.5\t-\t-\tpeer=b=2\n'
  printf 'lists\tfar\tns a call\t1\t5\tmemcpy\t0.05\t-\t1.20\tmemcpy=100\n'
} >"$work/run.tsv"

make_page() {
  mkdir -p "$1"
  printf 'above\n<!-- bench/run --page writes from here -->\nold\n<!-- to here -->\nbelow\n' >"$1/performance.md"
  "$python" -B "$source/bench/run" --page-from "$work/run.tsv" "$1"
}
make_page "$work/one"
make_page "$work/two"
diff -r "$work/one" "$work/two" || fail "the same lines gave other files"
make_page "$work/one" # what is generated is replaced, not added to
cd "$work/one"
sed -n '/^## Where we lose/,/^## Room/p' performance.md | grep '^- ' >"$work/losses"

[ "$(head -1 performance.md)$(tail -1 performance.md)" = abovebelow ] || fail "text beside the generated part is gone"
! grep -qx old performance.md || fail "the old part stands"
printf -- '- sample: plus, 1,000: 1.20 (1.05)\n- sample: plus of 10 elements, a call: 21.00 (20 ns)\n' |
  diff - "$work/losses" || fail "left: the rows above what was asked; right: those that the page names, of 1.054 none"
grep -qF '| plus, 1,000 | 0.12 | Eigen | 0.1 | **1.20** | 1.05 | 1.50 |' performance.md || fail "no row of plus"
grep -qF '| [sample](#sample) | 3 | 2 | 0.77 | 2 | 2 |' performance.md || fail "the rooms are not summed up"
grep -qF '| copied | 250 |' performance.md || fail "no rates of the machine"
grep -qF 'bold">1.20</text>' performance/sample.svg || fail "the plot does not mark the row above"
grep -qF 'ours 1, peer=b 2 (ns an element)' performance/sample.svg || fail "no times in the plot"
! grep -q 'bold' performance/lists.svg || fail "the plot marks a row that is not above"
! grep -q '<script' performance/*.svg || fail "a plot has a script"
! grep -q 'Do not believe' performance.md || fail "a quiet machine is called busy"
"$python" -c 'import glob, xml.dom.minidom as x; [x.parse(name) for name in glob.glob("performance/*.svg")]' ||
  fail "a plot is not well-formed"
[ "$(ls performance | xargs)" = "curves.svg elementwise.svg lists.svg run.tsv sample.svg" ] ||
  fail "other files: $(ls performance)"

sed -i 's/^# load at start.*/# load at start\t3.00/' "$work/run.tsv"
make_page "$work/busy"
grep -q 'load average was 3.00.*Do not believe' "$work/busy/performance.md" || fail "a busy machine is not called so"
