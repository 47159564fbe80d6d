/* image INPUT OUTPUT [OPERATION...]: what is done to a picture, one operation after the other.
 *
 *     left, right   a quarter turn         flip, mirror   upside down, left for right
 *     gray          luminance              negative       white less the sample
 *     gain NUMBER   times a number         levels COUNT   the nearest of so many levels
 *     blur          the mean of 3 by 3 pixels; the picture goes around at its borders
 *     deep          16 bits a sample in the output instead of 8
 *
 * The samples become reals from 0 to 1 (Scale), so that pictures of any depth are alike, and integers again
 * at the end (Round), where those that an operation made too light or too dark are clipped. A picture of
 * reals is an array and a tensor at once: both have one layout. */
#include "library.h"
#include "picture.h"

#include <torvane/operators.h>
#include <torvane/tensor.h>

#include <math.h>
#include <stdlib.h>
#include <string.h>

const char TorvaneLibrary_usage[] = "INPUT OUTPUT [OPERATION [NUMBER]]...";

enum { COERCE = 3, CLIP_AND_ROUND = 6, SCALE = 7 }; /* methods of conversion */

typedef struct Image {
  TorvaneLibraryData *record;
  MTensor *pixels; /* reals, from 0 for black to 1 for white: {rows, columns} or {rows, columns, 3} */
  bool deep;
} Image;

typedef mint (*Operation)(Image *image, mreal number);

static mint transpose(Image *i) { return CALL(i->record, "Transpose", &i->pixels, &i->pixels); }

static mint flip(Image *i, mreal unused) {
  (void)unused;
  return CALL(i->record, "Reverse", &i->pixels, &i->pixels);
}

static mint left(Image *i, mreal unused) {
  const mint status = transpose(i);
  return status != 0 ? status : flip(i, unused);
}

static mint right(Image *i, mreal unused) {
  const mint status = flip(i, unused);
  return status != 0 ? status : transpose(i);
}

static mint mirror(Image *i, mreal unused) {
  const mint status = left(i, unused);
  return status != 0 ? status : transpose(i);
}

/* The weights of red, green and blue of ITU-R BT.601. */
static mint gray(Image *i, mreal unused) {
  static const mreal luminance[3] = {0.299, 0.587, 0.114};
  const mint three = 3;
  mint flags = TORVANE_CHECK_REALS;
  (void)unused;
  if (i->pixels->rank == 2) return 0;
  MTensor *weights = MTensor_newCopyFromDataArray(TORVANE_TYPE_REAL, 1, &three, luminance);
  const mint status = CALL(i->record, "Dot", &i->pixels, &i->pixels, &weights, &flags);
  MTensor_delete(weights);
  return status;
}

static mint negative(Image *i, mreal unused) {
  const mreal one = 1;
  (void)unused;
  MTensor *white = i->record->runtime->sharedRankZero(&one, TORVANE_TYPE_REAL, 0);
  return i->record->runtime->binary(&i->pixels, white, i->pixels, SUBTRACT, TORVANE_TYPE_REAL);
}

static mint gain(Image *i, mreal factor) {
  MTensor *scalar = i->record->runtime->sharedRankZero(&factor, TORVANE_TYPE_REAL, 0);
  return i->record->runtime->binary(&i->pixels, i->pixels, scalar, TIMES, TORVANE_TYPE_REAL);
}

/* The pixels times `white` as integers, clipped to their range. The slot of a conversion that failed is not
 * to be used: it may hold the address of what is gone. */
static mint toIntegers(Image *i, mreal white, mint elementType, MNumericArray **integers) {
  MNumericArray *array = NULL;
  mint status = gain(i, white);
  if (status == 0)
    status = i->record->numeric->convert(&array, (MNumericArray *)i->pixels, elementType, CLIP_AND_ROUND, 0);
  *integers = status == 0 ? array : NULL;
  return status;
}

static mint toReals(Image *i, const MNumericArray *integers, mint method) {
  MNumericArray *reals = NULL;
  const mint status = i->record->numeric->convert(&reals, integers, TORVANE_ELEMENT_REAL64, method, 0);
  if (status != 0) return status;
  MTensor_delete(i->pixels);
  i->pixels = (MTensor *)reals;
  return 0;
}

/* In between white is COUNT - 1. */
static mint levels(Image *i, mreal count) {
  MNumericArray *integers = NULL;
  mint status = toIntegers(i, count - 1, TORVANE_ELEMENT_INTEGER32, &integers);
  if (status == 0) status = toReals(i, integers, COERCE);
  arrayDelete(integers);
  return status != 0 ? status : gain(i, 1 / (count - 1));
}

/* The picture, moved by a step to both sides along a dimension, added up and divided. */
static mint blurAlong(Image *i, const mint step[2]) {
  const mint two = 2;
  MTensor *before = NULL, *after = NULL;
  MTensor *steps = MTensor_newCopyFromDataArray(TORVANE_TYPE_INTEGER, 1, &two, step);
  mint status = CALL(i->record, "RotateLeft", &before, &i->pixels, &steps);
  if (status == 0) status = CALL(i->record, "RotateRight", &after, &i->pixels, &steps);
  if (status == 0) status = i->record->runtime->binary(&before, before, after, PLUS, TORVANE_TYPE_REAL);
  if (status == 0)
    status = i->record->runtime->binary(&i->pixels, i->pixels, before, PLUS, TORVANE_TYPE_REAL);
  MTensor_delete(before);
  MTensor_delete(after);
  MTensor_delete(steps);
  return status != 0 ? status : gain(i, 1.0 / 3);
}

static mint blur(Image *i, mreal unused) {
  static const mint down[2] = {1, 0}, across[2] = {0, 1};
  (void)unused;
  const mint status = blurAlong(i, down);
  return status != 0 ? status : blurAlong(i, across);
}

static mint deep(Image *i, mreal unused) {
  (void)unused;
  i->deep = true;
  return 0;
}

static const struct {
  const char *name;
  Operation run;
  mreal low, high; /* of its number; both 0: it takes none */
} operations[] = {{"left", left, 0, 0},        {"right", right, 0, 0},     {"flip", flip, 0, 0},
                  {"mirror", mirror, 0, 0},    {"gray", gray, 0, 0},       {"negative", negative, 0, 0},
                  {"gain", gain, -1000, 1000}, {"levels", levels, 2, 256}, {"blur", blur, 0, 0},
                  {"deep", deep, 0, 0}};
enum { OPERATIONS = sizeof operations / sizeof *operations };

static int find(const char *name) {
  int k = 0;
  while (k < OPERATIONS && strcmp(operations[k].name, name) != 0) k++;
  return k;
}

static bool readNumber(const char *word, int k, mreal *number) {
  char *end = NULL;
  if (word) *number = strtod(word, &end);
  if (word && end != word && *end == '\0' && *number >= operations[k].low && *number <= operations[k].high &&
      (operations[k].run != levels || *number == floor(*number)))
    return true;
  fprintf(stderr, "image: %s needs %s of %g to %g\n", operations[k].name,
          operations[k].run == levels ? "an integer" : "a number", operations[k].low, operations[k].high);
  return false;
}

/* Runs the operations that the words name, up to the null; without an image, only reads them. */
static mint apply(Image *image, char **words) {
  for (mint status = 0; *words; words++) {
    const int k = find(*words);
    mreal number = 0;
    if (k == OPERATIONS) return refuse(BAD_INPUT, "image: no operation \"%s\"", *words);
    if (operations[k].high > 0 && !readNumber(*++words, k, &number)) return BAD_INPUT;
    if (image) status = operations[k].run(image, number);
    if (status != 0) return status;
  }
  return 0;
}

/* Scale maps the whole range of the type; a file may have its white below that. */
static mint readImage(Image *i, const char *path) {
  Picture picture;
  mint status = pictureRead(&picture, path);
  if (status != 0) return status;
  status = toReals(i, picture.samples, SCALE);
  arrayDelete(picture.samples);
  const mint whole = picture.maximum > 255 ? 65535 : 255;
  return status == 0 && picture.maximum != whole ? gain(i, (mreal)whole / picture.maximum) : status;
}

static mint writeImage(Image *i, const char *path) {
  Picture picture = {.maximum = i->deep ? 65535 : 255, .samples = NULL};
  const mint type = i->deep ? TORVANE_ELEMENT_UNSIGNED_INTEGER16 : TORVANE_ELEMENT_UNSIGNED_INTEGER8;
  mint status = toIntegers(i, picture.maximum, type, &picture.samples);
  if (status == 0) status = pictureWrite(&picture, path);
  if (status == 0)
    printf("%s: %d by %d pixels, %d channels, maximum %d\n", path, i->pixels->dimensions[1],
           i->pixels->dimensions[0], i->pixels->rank == 3 ? 3 : 1, picture.maximum);
  arrayDelete(picture.samples);
  return status;
}

mint TorvaneLibrary_entry(TorvaneLibraryData *record, int argc, char **argv) {
  Image image = {.record = record};
  if (argc < 2) return WRONG_WORDS;
  mint status = apply(NULL, argv + 2);
  if (status == 0) status = readImage(&image, argv[0]);
  if (status == 0) status = apply(&image, argv + 2);
  if (status == 0) status = writeImage(&image, argv[1]);
  MTensor_delete(image.pixels);
  return status;
}
