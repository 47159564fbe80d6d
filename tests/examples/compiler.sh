#!/bin/bash
# compiler.sh PROGRAM SOURCE CASE: runs one case of the compiler; exit status 0 when it holds. The host, and with it
# what is compiled, are those of the same build; C is compiled without optimisation, which takes a quarter of the time.
. "$(dirname "$0")/cases.sh"
host=$(dirname "$program")/../host
programs=$source/examples/compiler/programs

# compiled FILE: leaves NAME.so, and no word.
compiled() {
  "$program" "$1" -o "$(basename "$1" .tn).so" >out 2>err || fail "$1: exit status $?: $(cat out err)"
  [ ! -s out ] && [ ! -s err ] || fail "$1: $(cat out err)"
}

# prints NAME FILE: the library prints the file, in all styles.
prints() {
  for style in 0 1 2; do
    "$host" --style $style "$1.so" >out 2>err || fail "style $style: exit status $?: $(cat out err)"
    cmp -s out "$2" || fail "style $style: $(diff out "$2")"
  done
}

# ends NAME: the program fails with just these words, in all styles.
ends() {
  compiled "$programs/failures/$1.tn"
  for style in 0 1 2; do
    "$host" --style $style "$1.so" >out 2>err
    [ $? -eq 1 ] || fail "$1, style $style: exit status $?"
    cmp -s err "$programs/failures/$1.err" || fail "$1, style $style: $(diff err "$programs/failures/$1.err")"
    cmp -s out "$programs/failures/$1.out" || fail "$1, style $style: $(diff out "$programs/failures/$1.out")"
  done
}

# says FILE MESSAGE: no library, no C, exit status 1, and this complaint.
says() {
  "$program" "$1" -o refused.so >out 2>err
  local got=$?
  [ "$(cat err)" = "$1:$2" ] || fail "$1: $(cat err), not $2"
  [ $got -eq 1 ] && [ ! -s out ] && [ ! -e refused.so ] || fail "$1: exit status $got"
}

# runs NAME: what it prints; and the same once it has been run again over reals, since a last line overflows.
runs() {
  compiled "$programs/$1.tn"
  prints "$1" "$programs/$1.out"
  { cat "$programs/$1.tn"; echo; echo 'print(2147483647 + 1)'; } >again.tn
  { cat "$programs/$1.out"; echo 2147483648; } >again.out
  compiled again.tn
  prints again again.out
  grep -q 'the program runs again over reals' err || fail "no note: $(cat err)"
}

case $case in
collatz) runs collatz ;;
factorial)
  runs factorial
  "$host" factorial.so 2>err >out
  cat >want <<'END'
factorial.tn:10:3: note: integers do not suffice; product_modulo runs again over reals
factorial.tn:4:20: note: integers do not suffice; factorial runs again over reals
factorial.tn:4:20: note: integers do not suffice; the program runs again over reals
END
  cmp -s err want || fail "notes: $(diff err want)"
  ;;
integers) runs integers ;;
large_sums) runs large_sums ;;
life) runs life ;;
mandelbrot) runs mandelbrot ;;
moving_average) runs moving_average ;;
newton) runs newton ;;
power_iteration) runs power_iteration ;;
random_walk) runs random_walk ;;
regression) runs regression ;;
sets) runs sets ;;
sieve) runs sieve ;;
every_program_is_a_case)
  for file in "$programs"/*.tn; do
    [ -e "${file%.tn}.out" ] || fail "no output for $file"
    grep -q "^$(basename "$file" .tn))" "$0" || fail "no case for $file"
  done
  ;;
errors_name_line_and_column)
  cd "$programs/errors" || exit 1
  count=0
  for file in *.tn; do
    want=$(sed -n '1s/^# //p' "$file")
    "$program" "$file" --emit-c >"$work/out" 2>"$work/err"
    [ $? -eq 1 ] || fail "$file: exit status $?"
    [ "$(cat "$work/err")" = "$file:$want" ] || fail "$file: $(cat "$work/err"), not $want"
    [ ! -s "$work/out" ] || fail "$file: C all the same"
    count=$((count + 1))
  done
  [ $count -ge 30 ] || fail "only $count programs"
  ;;
nothing_is_left_of_a_program_in_error)
  printf 'let x = 1\nlet x = 2\n' >t.tn
  says t.tn "2:1: error: 'x' is defined twice"
  ;;
complex_numbers_have_no_order)
  for operator in '<' '<=' '>' '>='; do
    echo "if 1i $operator 2 { print(1) }" >t.tn
    says t.tn '1:7: error: complex numbers have no order'
  done
  ;;
an_empty_program_does_nothing)
  : >t.tn
  : >t.out
  compiled t.tn
  prints t t.out
  ;;
failures_say_where_and_what)
  count=0
  for file in "$programs"/failures/*.tn; do
    ends "$(basename "$file" .tn)"
    count=$((count + 1))
  done
  [ $count -ge 8 ] || fail "only $count programs"
  ;;
a_function_that_falls_back_alone_leaves_its_callers_as_they_are)
  cat >t.tn <<'END'
fn modulo(a: int, b: int, m: int): int { return a * b % m }
fn twice(a: int): int { return 2 * modulo(a, a, 1000) }
print("once")
print(twice(2000000))
END
  printf 'once\n0\n' >t.out
  compiled t.tn
  prints t t.out
  [ "$(cat err)" = 't.tn:1:42: note: integers do not suffice; modulo runs again over reals' ] || fail "$(cat err)"
  ;;
the_most_negative_integer_is_none)
  printf 'fn least(): int { return -2147483647 - 1 }\nprint(least())\n' >t.tn
  echo -2147483648 >t.out
  compiled t.tn
  prints t t.out
  printf 't.tn:1:19: note: integers do not suffice; %s over reals\n' 'least runs again' 'the program runs again' >want
  cmp -s err want || fail "$(cat err)"
  ;;
effects_happen_once)
  cat >t.tn <<'END'
fn draw(): int { return RandomInteger(1, 1000000) }
fn say(n: int): int {
  print("said", n)
  return n + 1
}
let a = draw()
print(say(2147483646), say(2147483647))
let b = draw()
print(a == a)
END
  says t.tn '9:9: error: expected a number or a tensor, found a truth value'
  sed -i '$d' t.tn
  { sed '/^print/d' t.tn; echo 'print(a, b)'; } >numbers.tn
  { sed '/^print/d' t.tn; echo 'print(a, b)'; echo 'print(2147483647 + 1)'; } >again.tn
  for style in 0 1 2; do
    for name in numbers again; do
      sed -i '1i SeedRandom(7)' $name.tn
      compiled $name.tn
      "$host" --style $style $name.so >$name.out 2>err || fail "exit status $?: $(cat err)"
    done
    cmp -s <(head -1 again.out) numbers.out || fail "other numbers: $(cat numbers.out again.out)"
  done
  compiled t.tn
  printf 'said 2147483646\nsaid 2147483647\n2147483647 2147483648\n' >t.out
  prints t t.out
  ;;
operands_run_only_where_they_are_asked_for)
  cat >t.tn <<'END'
fn loud(n: int): int {
  print("asked", n)
  return n
}
let v = [1, 2]
if loud(1) == 2 and loud(2) == 2 { print("no") }
if loud(3) == 3 or loud(4) == 4 { print("yes") }
if size(v) > 2 and v[3] == 0 { print("no") }
if not (size(v) == 2 and (v[2] == 1 or loud(5) == 5)) { print("no") } else { print("last") }
END
  printf 'asked 1\nasked 3\nyes\nasked 5\nlast\n' >t.out
  compiled t.tn
  prints t t.out
  ;;
texts_arrive_as_they_are_written)
  printf 'print("quote \\" backslash \\\\ question ??/ percent %%d", 1)\nprint("tab\there", "\303\251\\nline")\n' >t.tn
  printf 'quote " backslash \\ question ??/ percent %%d 1\ntab\there \303\251\nline\n' >t.out
  compiled t.tn
  prints t t.out
  ;;
an_interrupt_ends_a_loop)
  printf 'print("kept")\nlet x = 0\nwhile 0 < 1 { x = 1 - x }\n' >t.tn
  compiled t.tn
  for style in 0 1 2; do
    "$host" --style $style t.so >out 2>err &
    sleep 0.5
    kill -INT $!
    wait $!
    [ $? -eq 1 ] || fail "exit status $?: $(cat err)"
    [ "$(cat out)" = kept ] || fail "stdout: $(cat out)"
    printf 't.tn:3:1: error: code 33\nhost: t.so: error 33, ABORT: the host asked for an abort\n' >want
    sed -i 's/^t.tn:3:[0-9]*/t.tn:3:1/' err # within the body or at its head
    cmp -s err want || fail "style $style: $(cat err)"
  done
  ;;
the_host_is_run_at_once)
  export TORVANEC_HOST=$host
  "$program" "$programs/sieve.tn" --run >out 2>err || fail "exit status $?: $(cat err)"
  cmp -s out "$programs/sieve.out" || fail "$(cat out)"
  unset TORVANEC_FLAGS # those of the build, optimised
  "$program" "$programs/sieve.tn" --run --style 0 >out 2>err || fail "style 0: exit status $?: $(cat err)"
  cmp -s out "$programs/sieve.out" || fail "style 0: $(cat out)"
  [ -z "$(ls ./*.so 2>/dev/null)" ] || fail "a library is left"
  ;;
c_can_be_had_for_reading)
  "$program" "$programs/life.tn" --emit-c >one.c || fail "exit status $?"
  "$program" "$programs/life.tn" --emit-c two.c || fail "exit status $?"
  cmp one.c two.c || fail "two texts"
  grep -q '^mint TorvaneLibrary_entry' one.c || fail "no entry"
  ;;
what_cannot_be_done_is_refused)
  usage='usage: torvanec PROGRAM.tn [-o LIBRARY.so | --emit-c [FILE.c] | --run [--style 0|1|2]]'
  refused 2 "$usage"
  refused 2 "$usage" a.tn b.tn
  refused 2 "$usage" a.tn -o
  refused 2 "$usage" a.tn --run -o a.so
  refused 2 "$usage" a.tn --run --emit-c
  refused 2 "$usage" a.tn --style 0
  refused 2 'torvanec: cannot read a.tn' a.tn
  refused 2 'torvanec: cannot read .' .
  echo 'print(1)' >t.tn
  refused 2 'torvanec: cannot write none/t.c' t.tn --emit-c none/t.c
  TORVANEC_CC=./none refused 2 'torvanec: cannot run ./none' t.tn
  TORVANEC_CC=false refused 2 'torvanec: the C compiler failed' t.tn
  compiled t.tn
  "$host" t.so word 2>err && fail "words are taken"
  grep -q '^t.tn: the program takes no words$' err || fail "$(cat err)"
  ;;
*) fail "no case $case" ;;
esac
