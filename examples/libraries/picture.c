#include "picture.h"

#include "library.h"

#include <torvane/tensor.h>

#include <errno.h>
#include <string.h>

enum { MOST_EXTENT = 32767 };

typedef struct Reader {
  FILE *file;
  const char *path;
  bool plain; /* samples are decimal numbers */
  mint extents[3], rank;
} Reader;

void arrayDelete(MNumericArray *array) { MTensor_delete((MTensor *)array); }

static bool isBlank(int byte) { return byte == ' ' || (byte >= '\t' && byte <= '\r'); }

/* The first byte that belongs to no blank and no comment. */
static int skipBlanks(FILE *file) {
  int byte = getc(file);
  while (isBlank(byte) || byte == '#') {
    if (byte == '#')
      while (byte != '\n' && byte != EOF) byte = getc(file);
    else
      byte = getc(file);
  }
  return byte;
}

/* A decimal number up to `most`, or -1. The byte behind it is read too: in a header that is the one blank. */
static mint readNumber(FILE *file, mint most) {
  mint number = 0;
  int byte = skipBlanks(file);
  if (byte < '0' || byte > '9') return -1;
  for (; byte >= '0' && byte <= '9'; byte = getc(file)) {
    number = 10 * number + (byte - '0');
    if (number > most) return -1;
  }
  return byte == EOF || isBlank(byte) ? number : -1;
}

static mint readHeader(Reader *r, mint *maximum) {
  const int letter = getc(r->file) == 'P' ? getc(r->file) : 0;
  if (letter != '2' && letter != '3' && letter != '5' && letter != '6')
    return refuse(BAD_INPUT, "image: %s: not a PGM or PPM picture", r->path);
  r->plain = letter < '5';
  r->rank = letter == '3' || letter == '6' ? 3 : 2;
  r->extents[2] = 3;
  r->extents[1] = readNumber(r->file, MOST_EXTENT);
  r->extents[0] = r->extents[1] > 0 ? readNumber(r->file, MOST_EXTENT) : 0;
  if (r->extents[0] < 1)
    return refuse(BAD_INPUT, "image: %s: width and height must be numbers of 1 to %d", r->path, MOST_EXTENT);
  *maximum = readNumber(r->file, 65535);
  if (*maximum > 0) return 0;
  return refuse(BAD_INPUT, "image: %s: the maximum must be a number of 1 to 65535", r->path);
}

/* Two bytes are one sample, the high one first; -1 where the file has ended. */
static mint readRaw(FILE *file, bool wide) {
  const int high = wide ? getc(file) : 0, low = getc(file);
  return high == EOF || low == EOF ? -1 : (mint)(256 * high + low);
}

static mint readSamples(const Reader *r, Picture *picture) {
  const bool wide = picture->maximum > 255;
  uint8_t *bytes = picture->samples->data;
  uint16_t *words = picture->samples->data;
  for (mint i = 0; i < picture->samples->elementCount; i++) {
    const mint value = r->plain ? readNumber(r->file, 65535) : readRaw(r->file, wide);
    if (value < 0)
      return refuse(BAD_INPUT, "image: %s: %s", r->path,
                    feof(r->file) ? "the file ends before its samples"
                                  : "a sample is no number of 0 to 65535");
    if (value > picture->maximum)
      return refuse(BAD_INPUT, "image: %s: a sample of %d is above the maximum of %d", r->path, value,
                    picture->maximum);
    if (wide)
      words[i] = (uint16_t)value;
    else
      bytes[i] = (uint8_t)value;
  }
  return 0;
}

static mint readPicture(Reader *r, Picture *picture) {
  const mint status = readHeader(r, &picture->maximum);
  if (status != 0) return status;
  const mint type =
      picture->maximum > 255 ? TORVANE_ELEMENT_UNSIGNED_INTEGER16 : TORVANE_ELEMENT_UNSIGNED_INTEGER8;
  picture->samples = Runtime_CreateNumericArray(type, r->rank, r->extents);
  if (!picture->samples)
    return refuse(BAD_INPUT, "image: %s: %d by %d pixels are too many", r->path, r->extents[1],
                  r->extents[0]);
  return readSamples(r, picture);
}

mint pictureRead(Picture *picture, const char *path) {
  Reader r = {.file = fopen(path, "rb"), .path = path};
  picture->samples = NULL;
  if (!r.file) return refuse(BAD_INPUT, "image: %s: %s", path, strerror(errno));
  const mint status = readPicture(&r, picture);
  fclose(r.file);
  if (status != 0) arrayDelete(picture->samples);
  return status;
}

static void writeSamples(const Picture *picture, FILE *file) {
  const uint8_t *bytes = picture->samples->data;
  const uint16_t *words = picture->samples->data;
  for (mint i = 0; i < picture->samples->elementCount; i++) {
    if (picture->maximum > 255) putc(words[i] >> 8, file);
    putc(picture->maximum > 255 ? words[i] & 255 : bytes[i], file);
  }
}

mint pictureWrite(const Picture *picture, const char *path) {
  FILE *file = fopen(path, "wb");
  if (!file) return refuse(BAD_INPUT, "image: %s: %s", path, strerror(errno));
  const mint *extents = picture->samples->dimensions;
  fprintf(file, "P%d\n%d %d\n%d\n", picture->samples->rank == 3 ? 6 : 5, extents[1], extents[0],
          picture->maximum);
  writeSamples(picture, file);
  const bool written = !ferror(file);
  if (fclose(file) == 0 && written) return 0;
  return refuse(BAD_INPUT, "image: %s: cannot be written: %s", path, strerror(errno));
}
