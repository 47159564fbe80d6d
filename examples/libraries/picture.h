/* PGM and PPM pictures: the plain and the raw forms (P2, P3, P5, P6) of the Netpbm formats. */
#ifndef EXAMPLE_PICTURE_H
#define EXAMPLE_PICTURE_H

#include <torvane/numeric_arrays.h>

#include <stdbool.h>

/* Unsigned integers of 8 bits, or of 16 where the maximum is above 255. Extents are rows and columns; a
 * colour picture has a third one, its 3 channels. */
typedef struct Picture {
  mint maximum; /* the value of white */
  MNumericArray *samples;
} Picture;

/* Fills the record and returns 0, or says on stderr what is wrong with the file and returns a status. The
 * samples are the caller's to delete. Bytes behind the last sample are not read. */
mint pictureRead(Picture *picture, const char *path);

/* Writes the raw form, or says what is wrong, likewise. The maximum is 255 or 65535, as the samples are wide.
 */
mint pictureWrite(const Picture *picture, const char *path);

/* An array has the layout of a tensor, and the tensors' delete is its own. Null is ignored. */
void arrayDelete(MNumericArray *array);

#endif
