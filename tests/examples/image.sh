#!/bin/bash
# image.sh PROGRAM SOURCE CASE: runs one case of the library `image` in the host; exit status 0 when it holds. What the
# operations compute is held against a plain model in image_test.cpp.
. "$(dirname "$0")/cases.sh"
rings=$source/examples/data/rings.ppm

# made FILE TEXT WORDS...: the library writes `out.pnm` from the file, and says TEXT about it.
made() {
  local file=$1 text=$2
  shift 2
  "$program" "$library" "$file" out.pnm "$@" >out 2>err || fail "exit status $?: $(cat err)"
  [ ! -s err ] || fail "stderr: $(cat err)"
  [ "$(cat out)" = "out.pnm: $text" ] || fail "stdout: $(cat out)"
}

# picture TEXT: writes t.pnm. holds TEXT: what out.pnm is, to the byte.
picture() { printf "$1" >t.pnm; }
holds() { cmp out.pnm <(printf "$1") || fail "$(od -c out.pnm)"; }

# refused_as_bad MESSAGE WORDS...: by status 4, and nothing is written. is_bad MESSAGE: so is t.pnm.
refused_as_bad() {
  local message=$1
  shift
  refused_with "$bad" "image: $message" "$@"
  [ ! -e out.pnm ] || fail "something was written"
}
is_bad() { refused_as_bad "t.pnm: $1" t.pnm out.pnm; }

case $case in
every_form_of_a_picture_is_read)
  picture 'P2\n# a comment\n3 2\n255\n0 10 20\n30 40 255\n' && made t.pnm '3 by 2 pixels, 1 channels, maximum 255'
  holds 'P5\n3 2\n255\n\000\012\024\036\050\377'
  picture 'P5 3 2 255\n\000\012\024\036\050\377' && made t.pnm '3 by 2 pixels, 1 channels, maximum 255'
  holds 'P5\n3 2\n255\n\000\012\024\036\050\377'
  picture 'P3 1 2 255 1 2 3 4 5 6' && made t.pnm '1 by 2 pixels, 3 channels, maximum 255'
  holds 'P6\n1 2\n255\n\001\002\003\004\005\006'
  picture 'P6#x\n1 #y\n2 255\n\001\002\003\004\005\006 more' && made t.pnm '1 by 2 pixels, 3 channels, maximum 255'
  holds 'P6\n1 2\n255\n\001\002\003\004\005\006'
  picture 'P5 1 2 65535\n\001\002\003\004' && made t.pnm '1 by 2 pixels, 1 channels, maximum 65535' deep
  holds 'P5\n1 2\n65535\n\001\002\003\004'
  ;;
other_maxima_become_the_whole_range)
  picture 'P2 3 1 15 0 5 15' && made t.pnm '3 by 1 pixels, 1 channels, maximum 255' && holds 'P5\n3 1\n255\n\000\125\377'
  picture 'P2 3 1 1000 0 600 1000' && made t.pnm '3 by 1 pixels, 1 channels, maximum 65535' deep
  holds 'P5\n3 1\n65535\n\000\000\231\231\377\377'
  ;;
four_quarter_turns_are_none)
  made "$rings" '96 by 72 pixels, 3 channels, maximum 255' && mv out.pnm whole
  made "$rings" '72 by 96 pixels, 3 channels, maximum 255' left
  ! cmp -s whole out.pnm || fail "not turned"
  made "$rings" '96 by 72 pixels, 3 channels, maximum 255' left left left left && cmp whole out.pnm || fail left
  made "$rings" '96 by 72 pixels, 3 channels, maximum 255' right right right right && cmp whole out.pnm || fail right
  made "$rings" '96 by 72 pixels, 3 channels, maximum 255' left right && cmp whole out.pnm || fail both
  made "$rings" '96 by 72 pixels, 3 channels, maximum 255' flip mirror left left && cmp whole out.pnm || fail "half a turn"
  tail -c 20736 "$rings" | cmp - <(tail -c 20736 whole) || fail "the shipped picture changed on its way"
  ;;
the_output_may_be_the_input)
  picture 'P2 2 1 255 7 9' && "$program" "$library" t.pnm t.pnm mirror >out || fail "exit status $?"
  cmp t.pnm <(printf 'P5\n2 1\n255\n\011\007')
  ;;
what_is_too_light_or_too_dark_is_clipped)
  picture 'P2 3 1 255 100 200 0' && made t.pnm '3 by 1 pixels, 1 channels, maximum 255' gain 2 && holds 'P5\n3 1\n255\n\310\377\000'
  made t.pnm '3 by 1 pixels, 1 channels, maximum 255' gain -1 && holds 'P5\n3 1\n255\n\000\000\000'
  made t.pnm '3 by 1 pixels, 1 channels, maximum 255' gain 1000 gain 0.001 && holds 'P5\n3 1\n255\n\144\310\000'
  ;;
a_file_that_is_no_picture_is_refused)
  for text in '' P 'P1 1 1 0' 'P4 1 1 x' 'P7\n' 'Q5 1 1 255 x' 'GIF89a'; do
    picture "$text" && is_bad 'not a PGM or PPM picture'
  done
  ;;
a_bad_header_is_refused)
  for text in 'P5' 'P5 x' 'P5 0 1 255 x' 'P5 1 0 255 x' 'P5 -1 1 255 x' 'P5 32768 1 255 x' 'P5 1 99999999999 255 x' 'P5 1x1 255 x' 'P5 1 # no end'; do
    picture "$text" && is_bad 'width and height must be numbers of 1 to 32767'
  done
  for text in 'P5 1 1 0 x' 'P5 1 1 65536 x' 'P5 1 1' 'P5 1 1 x' 'P5 1 1 255#' 'P5 1 1 -5 x'; do
    picture "$text" && is_bad 'the maximum must be a number of 1 to 65535'
  done
  ;;
bad_samples_are_refused)
  picture 'P5 2 2 255\nabc' && is_bad 'the file ends before its samples'
  picture 'P5 1 1 65535\na' && is_bad 'the file ends before its samples'
  picture 'P2 2 1 255 1' && is_bad 'the file ends before its samples'
  picture 'P2 2 1 255 1 x' && is_bad 'a sample is no number of 0 to 65535'
  picture 'P2 2 1 255 1 70000' && is_bad 'a sample is no number of 0 to 65535'
  picture 'P2 2 1 255 1 256' && is_bad 'a sample of 256 is above the maximum of 255'
  picture 'P5 1 1 100 e' && is_bad 'a sample of 101 is above the maximum of 100'
  ;;
a_picture_that_cannot_be_had_is_refused)
  refused_as_bad 'no/such.pgm: No such file or directory' no/such.pgm out.pnm
  mkdir d && refused_as_bad 'd: not a PGM or PPM picture' d out.pnm
  ;;
a_picture_that_cannot_be_written_is_reported)
  refused_as_bad 'no/such.pgm: No such file or directory' "$rings" no/such.pgm
  refused_as_bad '/dev/full: cannot be written: No space left on device' "$rings" /dev/full
  # A small one is written when the file is closed, and not before.
  picture 'P2 1 1 255 7' && refused_as_bad '/dev/full: cannot be written: No space left on device' t.pnm /dev/full
  ;;
a_wrong_number_of_words_is_refused)
  wrong='12: a wrong number of arguments, or an unknown function'$'\n'"usage: $library INPUT OUTPUT [OPERATION [NUMBER]]..."
  refused_with "$wrong" ''
  refused_with "$wrong" '' "$rings"
  ;;
operations_that_do_not_exist_or_lack_their_number_are_refused)
  refused_as_bad 'no operation "sharpen"' "$rings" out.pnm gray sharpen
  refused_as_bad 'gain needs a number of -1000 to 1000' "$rings" out.pnm gain
  for word in x nan 1001 inf '' 1x; do
    refused_as_bad 'gain needs a number of -1000 to 1000' "$rings" out.pnm gain "$word"
  done
  for word in 1 257 2.5; do
    refused_as_bad 'levels needs an integer of 2 to 256' "$rings" out.pnm levels "$word"
  done
  ;;
samples_beyond_all_numbers_are_clipped_too)
  words=$(for _ in $(seq 110); do echo gain 1000; done)
  picture 'P2 3 1 255 0 1 255' && made t.pnm '3 by 1 pixels, 1 channels, maximum 255' $words && holds 'P5\n3 1\n255\n\000\377\377'
  made t.pnm '3 by 1 pixels, 1 channels, maximum 255' $words negative && holds 'P5\n3 1\n255\n\377\000\000'
  ;;
files_cut_short_anywhere_do_no_harm)
  picture 'P3 #\n2 2 255 1 2 3 4 5 6 7 8 9 10 11 12'
  for size in $(seq 0 35); do
    head -c "$size" t.pnm >cut.pnm
    "$program" "$library" cut.pnm out.pnm >out 2>err
    [ $? -eq 1 ] && [ ! -e out.pnm ] || fail "$size bytes: $(cat out err)"
  done
  ;;
*) fail "no case $case" ;;
esac
