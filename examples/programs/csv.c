/* The CSV reader of the examples. All its memory comes from the library, whose sizes have 32 bits; the
 * checked scalars keep every product of sizes inside them. */
#include "csv.h"

#include "../message.h"

#include <errno.h>
#include <math.h>
#include <stdlib.h>
#include <string.h>

bool csvComplain(const Csv *csv, mint line, mint column, const char *format, ...) {
  fprintf(stderr, "%s: %s", csv->program, csv->path);
  if (line > 0) fprintf(stderr, ":%d", line);
  if (column > 0) fprintf(stderr, ": column %d", column);
  if (column > 0 && column <= csv->columnCount) fprintf(stderr, " (%s)", csv->names[column - 1]);
  fputs(": ", stderr);
  va_list arguments;
  va_start(arguments, format);
  messageEnd(format, arguments);
  va_end(arguments);
  return false;
}

/* Bytes of `count` items, or -1 when the product has no place in 32 bits: in style 1 a checked scalar
 * that fails returns and leaves its code to be tested, and cleared. */
static mint bytesFor(mint count, size_t itemSize) {
  mint bytes = checked_binary_times_Integer32_Integer32(count, (mint)itemSize);
  return setExceptionActive(0) == 0 ? bytes : -1;
}

/* Makes room for twice as many items (or `first` of them). The old block is kept when that is too much. */
static bool grow(void **block, mint *capacity, mint first, size_t itemSize) {
  mint doubled = *capacity == 0 ? first : checked_binary_times_Integer32_Integer32(*capacity, 2);
  mint bytes = setExceptionActive(0) == 0 ? bytesFor(doubled, itemSize) : -1;
  if (bytes < 0) return false;
  *block = Realloc_fun(*block, (uint32_t)bytes);
  *capacity = doubled;
  return true;
}

/* No NUL, which would cut the text short, and nothing else that could upset a terminal as part of a name. */
static bool isText(const char *text, mint length) {
  for (const char *c = text; c < text + length; c++)
    if ((*c >= 0 && *c < ' ' && !strchr("\t\n\v\f\r", *c)) || *c == '\0' || *c == '\x7F') return false;
  return true;
}

static bool readStream(Csv *csv, FILE *file) {
  mint capacity = 0, length = 0, got = 0;
  do {
    void *text = csv->text;
    if (length + 1 >= capacity && !grow(&text, &capacity, 65536, 1))
      return csvComplain(csv, 0, 0, "the file is too large");
    csv->text = text;
    got = (mint)fread(csv->text + length, 1, (size_t)(capacity - length - 1), file);
    length += got;
  } while (got > 0);
  csv->text[length] = '\0';
  if (ferror(file)) return csvComplain(csv, 0, 0, "%s", strerror(errno));
  return isText(csv->text, length) || csvComplain(csv, 0, 0, "this is not a text file");
}

static bool readText(Csv *csv) {
  FILE *file = fopen(csv->path, "rb");
  if (!file) return csvComplain(csv, 0, 0, "%s", strerror(errno));
  bool read = readStream(csv, file);
  fclose(file);
  return read;
}

/* Takes the text up to the separator at `end` off *rest; *rest is null after the last piece. */
static char *take(char **rest, char *end) {
  char *piece = *rest;
  if (end) *end = '\0';
  *rest = end ? end + 1 : NULL;
  return piece;
}

/* The comma behind the field, past those inside its quotes. A doubled quote does not end them, and stays
 * doubled. */
static char *commaAfter(char *field) {
  field += strspn(field, " \t\r");
  char *quote = *field == '"' ? strchr(field + 1, '"') : NULL;
  while (quote && quote[1] == '"') quote = strchr(quote + 2, '"');
  return strchr(quote ? quote : field, ',');
}

static char *withoutBlanks(char *text) {
  text += strspn(text, " \t\r");
  size_t length = strlen(text);
  while (length > 0 && strchr(" \t\r", text[length - 1])) length--;
  text[length] = '\0';
  return text;
}

static char *takeField(char **rest) {
  char *field = withoutBlanks(take(rest, commaAfter(*rest)));
  size_t length = strlen(field);
  if (length < 2 || field[0] != '"' || field[length - 1] != '"') return field;
  field[length - 1] = '\0';
  return field + 1;
}

static bool parseNumber(const char *field, mreal *value) {
  char *end;
  *value = strtod(field, &end);
  return end != field && *end == '\0' && isfinite(*value);
}

static bool allocateColumns(Csv *csv, const char *header) {
  mint count = 1; /* at the most: a comma may stand in quotes */
  for (const char *c = header; *c; c++) count += *c == ',';
  mint bytes = bytesFor(count, sizeof *csv->names);
  if (bytes < 0) return csvComplain(csv, csv->headerLine, 0, "too many columns");
  csv->names = Malloc_fun((uint32_t)bytes);
  csv->numeric = Calloc_fun((uint32_t)count, sizeof *csv->numeric);
  return true;
}

static bool readHeader(Csv *csv, char *header) {
  if (!allocateColumns(csv, header)) return false;
  bool named = false;
  mreal number;
  for (char *rest = header; rest; csv->columnCount++) {
    char *name = csv->names[csv->columnCount] = takeField(&rest);
    if (*name == '\0')
      return csvComplain(csv, csv->headerLine, csv->columnCount + 1, "the header has no name here");
    named = named || !parseNumber(name, &number);
  }
  return named ||
         csvComplain(csv, csv->headerLine, 0, "a header row must name the columns; it has only numbers");
}

static bool keepValue(Csv *csv, mint index, mreal value) {
  void *values = csv->values;
  if (index == csv->valueCapacity && !grow(&values, &csv->valueCapacity, 1024, sizeof value))
    return csvComplain(csv, 0, 0, "the file is too large");
  csv->values = values;
  csv->values[index] = value;
  return true;
}

static bool readRecord(Csv *csv, mint line, char *rest) {
  mint kept = csv->rowCount * csv->numericCount; /* fits: as many values are stored */
  for (mint column = 0; column < csv->columnCount; column++) {
    if (!rest)
      return csvComplain(csv, line, column + 1, "the row ends before it; the header names %d columns",
                         csv->columnCount);
    const char *field = takeField(&rest);
    mreal value;
    bool number = parseNumber(field, &value);
    if (csv->rowCount == 0) csv->numericCount += csv->numeric[column] = number;
    if (!csv->numeric[column]) continue;
    if (!number) return csvComplain(csv, line, column + 1, "\"%.40s\" is not a finite number", field);
    if (!keepValue(csv, kept++, value)) return false;
  }
  if (rest)
    return csvComplain(csv, line, csv->columnCount + 1, "the row goes on; the header names %d columns",
                       csv->columnCount);
  csv->rowCount = checked_binary_plus_Integer32_Integer32(csv->rowCount, 1);
  return setExceptionActive(0) == 0 || csvComplain(csv, line, 0, "too many rows");
}

static bool readLines(Csv *csv, char *rest) {
  for (mint line = 1; rest; line++) {
    char *text = withoutBlanks(take(&rest, strchr(rest, '\n')));
    if (*text == '\0') continue;
    if (!csv->names) csv->headerLine = line;
    if (csv->names ? !readRecord(csv, line, text) : !readHeader(csv, text)) return false;
  }
  return true;
}

static char *withoutByteOrderMark(char *text) {
  return text + (strncmp(text, "\xEF\xBB\xBF", 3) == 0 ? 3 : 0);
}

bool csvRead(Csv *csv, const char *path) {
  csv->path = path;
  if (!readText(csv) || !readLines(csv, withoutByteOrderMark(csv->text))) return false;
  if (!csv->names) return csvComplain(csv, 1, 0, "the file is empty");
  if (csv->rowCount == 0)
    return csvComplain(csv, csv->headerLine, 0, "there is no row of values below the header");
  if (csv->numericCount == 0) return csvComplain(csv, csv->headerLine, 0, "no column holds numbers");
  return true;
}

void csvFree(Csv *csv) {
  Free_fun(csv->text);
  Free_fun(csv->names);
  Free_fun(csv->numeric);
  Free_fun(csv->values);
}

mint csvNumericColumn(const Csv *csv, mint index) {
  mint column = 0;
  while (!csv->numeric[column] || index-- > 0) column++;
  return column;
}

const char *csvName(const Csv *csv, mint index) { return csv->names[csvNumericColumn(csv, index)]; }

int csvNameWidth(const Csv *csv) {
  size_t width = 12;
  for (mint column = 0; column < csv->columnCount; column++)
    if (strlen(csv->names[column]) > width) width = strlen(csv->names[column]);
  return (int)width;
}

void csvPrintHeading(const Csv *csv) {
  printf("%s: %d rows, %d numeric columns\n", csv->path, csv->rowCount, csv->numericCount);
  for (mint column = 0; column < csv->columnCount; column++)
    if (!csv->numeric[column]) printf("skipped, not numeric: %s\n", csv->names[column]);
}
