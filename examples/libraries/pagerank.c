/* pagerank LINKS [DAMPING [SHOWN]]: the pages at which a reader arrives who follows links at random.
 *
 * Each line of LINKS names a page and a page that it links to; what follows a # is a comment. The reader
 * follows one of the page's links with probability DAMPING (0.85), each alike and one that stands twice twice
 * as often, and otherwise, or where there is none, starts anew on any page. The scores are the probabilities
 * to be on a page: Page, Brin, Motwani and Winograd, "The PageRank citation ranking", 1999. They are found by
 * power iteration with a sparse matrix, until they move by less than 1e-12 in all.
 *
 * This library is linked to nothing: all that it has of the runtime is the record. */
#include "library.h"

#include <torvane/operators.h>

#include <errno.h>
#include <stdbool.h>
#include <stdlib.h>
#include <string.h>

const char TorvaneLibrary_usage[] = "LINKS [DAMPING [SHOWN]]";

enum { MOST_STEPS = 100000, NAME_ROOM = 64, MOST_PAGES = 100000, LINE_ROOM = 1024 };

typedef struct Page {
  char name[NAME_ROOM];
  mint in, out; /* links */
} Page;

typedef struct Web {
  TorvaneLibraryData *record;
  const char *path;
  Page *pages;
  mint count, room;
  mint bag;             /* of the links: the number of the page linked to, then the page's, from 1 */
  MTensor *links;       /* the same as lines of a matrix */
  MSparseArray *matrix; /* entry (to, from): the chance to get from a page to another, by links alone */
  MTensor *scores, *next;
} Web;

static void forget(Web *web) {
  web->record->sparse->deleteArray(web->matrix);
  web->record->deleteTensor(web->links); /* null is ignored */
  web->record->deleteTensor(web->scores);
  web->record->deleteTensor(web->next);
  free(web->pages);
}

/* The number of the page, from 1; 0 where it has no room. A web is small: a list will do. */
static mint numberOf(Web *web, const char *name) {
  for (mint i = 0; i < web->count; i++)
    if (strcmp(web->pages[i].name, name) == 0) return i + 1;
  if (web->count == MOST_PAGES) return 0;
  if (web->count == web->room) {
    const mint room = web->room == 0 ? 64 : 2 * web->room;
    Page *pages = realloc(web->pages, (size_t)room * sizeof *pages);
    if (!pages) return 0;
    web->pages = pages;
    web->room = room;
  }
  Page *page = &web->pages[web->count];
  *page = (Page){.in = 0};
  strcpy(page->name, name);
  return ++web->count;
}

static mint addLink(Web *web, const char *from, const char *to) {
  mint source = numberOf(web, from), target = numberOf(web, to);
  if (source == 0 || target == 0) return refuse(NO_MEMORY, "pagerank: %s: too many pages", web->path);
  web->pages[source - 1].out++;
  web->pages[target - 1].in++;
  const mint status = CALL(web->record, "StuffBagScalar", NULL, &web->bag, &target);
  return status != 0 ? status : CALL(web->record, "StuffBagScalar", NULL, &web->bag, &source);
}

/* A line of blanks and comments is none. */
static mint readLine(Web *web, char *line, mint number) {
  const char *blanks = " \t\r\n";
  line[strcspn(line, "#")] = '\0';
  const char *from = strtok(line, blanks), *to = strtok(NULL, blanks), *more = strtok(NULL, blanks);
  if (!from) return 0;
  if (!to || more) return refuse(BAD_INPUT, "pagerank: %s:%d: a link is two names", web->path, number);
  if (strlen(from) >= NAME_ROOM || strlen(to) >= NAME_ROOM)
    return refuse(BAD_INPUT, "pagerank: %s:%d: a name is longer than %d bytes", web->path, number,
                  NAME_ROOM - 1);
  return addLink(web, from, to);
}

static mint readLines(Web *web, FILE *file) {
  char line[LINE_ROOM];
  mint status = 0;
  for (mint number = 1; status == 0 && fgets(line, sizeof line, file); number++) {
    if (strlen(line) == sizeof line - 1 && line[sizeof line - 2] != '\n')
      status = refuse(BAD_INPUT, "pagerank: %s:%d: the line is longer than %d bytes", web->path, number,
                      LINE_ROOM - 2);
    else
      status = readLine(web, line, number);
  }
  if (status == 0 && ferror(file)) status = refuse(BAD_INPUT, "pagerank: %s: %s", web->path, strerror(errno));
  if (status == 0 && web->count == 0) status = refuse(BAD_INPUT, "pagerank: %s: no link", web->path);
  return status;
}

static mint readWeb(Web *web) {
  mint integers = TORVANE_TYPE_INTEGER;
  mint status = CALL(web->record, "Bag", &web->bag, &integers);
  if (status != 0) return status;
  FILE *file = fopen(web->path, "r");
  if (!file) return refuse(BAD_INPUT, "pagerank: %s: %s", web->path, strerror(errno));
  status = readLines(web, file);
  fclose(file);
  return status;
}

/* What is in the bag, two by two. */
static mint takeLinks(Web *web) {
  mint all = 2, one = 1, pair = 2;
  MTensor *sizes = NULL;
  mint status = CALL(web->record, "BagPart", &web->links, &web->bag, &all);
  if (status == 0) status = web->record->newTensor(TORVANE_TYPE_INTEGER, 1, &one, &sizes);
  if (status == 0) status = web->record->setInteger(sizes, &one, pair);
  if (status == 0) status = CALL(web->record, "Partition", &web->links, &web->links, &sizes, &sizes);
  web->record->deleteTensor(sizes);
  return status;
}

/* Of each link one over the number of links of its page. */
static mint newChances(Web *web, MTensor **chances) {
  const mint count = *web->record->dimensions(web->links);
  const mint status = web->record->newTensor(TORVANE_TYPE_REAL, 1, &count, chances);
  if (status != 0) return status;
  const mint *links = web->record->integerData(web->links);
  mreal *chance = web->record->realData(*chances);
  for (mint i = 0; i < count; i++) chance[i] = 1.0 / web->pages[links[2 * i + 1] - 1].out;
  return 0;
}

static mint makeMatrix(Web *web) {
  const mreal zero = 0;
  const mint two = 2, extents[2] = {web->count, web->count};
  MTensor *chances = NULL, *shape = NULL, *background = NULL;
  mint status = newChances(web, &chances);
  if (status == 0) status = web->record->newTensor(TORVANE_TYPE_INTEGER, 1, &two, &shape);
  if (status == 0) {
    memcpy(web->record->integerData(shape), extents, sizeof extents);
    background = web->record->runtime->sharedRankZero(&zero, TORVANE_TYPE_REAL, 0);
    status = web->record->sparse->fromPositions(web->links, chances, shape, background, &web->matrix);
  }
  web->record->deleteTensor(chances);
  web->record->deleteTensor(shape);
  return status;
}

static mreal *scoresOf(const Web *web, const MTensor *scores) { return web->record->realData(scores); }

/* At first all pages are alike. */
static mint makeScores(Web *web) {
  mint status = web->record->newTensor(TORVANE_TYPE_REAL, 1, &web->count, &web->scores);
  if (status == 0) status = web->record->newTensor(TORVANE_TYPE_REAL, 1, &web->count, &web->next);
  for (mint i = 0; status == 0 && i < web->count; i++) scoresOf(web, web->scores)[i] = 1.0 / web->count;
  return status;
}

/* next = damping (matrix . scores + the scores of pages without links, spread) + (1 - damping) / count */
static void step(Web *web, mreal damping) {
  const TorvaneSparseTable *sparse = web->record->sparse;
  const mint *rows = sparse->rowPointers(web->matrix), *columns = sparse->columnIndices(web->matrix);
  const mreal *chances = web->record->realData(sparse->values(web->matrix));
  const mreal *scores = scoresOf(web, web->scores);
  mreal stuck = 0;
  for (mint i = 0; i < web->count; i++) stuck += web->pages[i].out == 0 ? scores[i] : 0;
  const mreal base = (1 - damping + damping * stuck) / web->count;
  for (mint to = 0; to < web->count; to++) {
    mreal sum = 0;
    for (mint k = rows[to]; k < rows[to + 1]; k++) sum += chances[k] * scores[columns[k] - 1];
    scoresOf(web, web->next)[to] = base + damping * sum;
  }
}

/* The sum of the magnitudes by which the scores moved; they become the next ones. */
static mint advance(Web *web, mreal damping, mreal *moved) {
  mint one = 1, flags = TORVANE_CHECK_REALS;
  step(web, damping);
  mint status =
      web->record->runtime->binary(&web->scores, web->scores, web->next, SUBTRACT, TORVANE_TYPE_REAL);
  if (status == 0) status = CALL(web->record, "Norm", moved, &web->scores, &one, &flags);
  MTensor *old = web->scores;
  web->scores = web->next;
  web->next = old;
  return status;
}

static mint iterate(Web *web, mreal damping, mint *steps) {
  mreal moved = 1;
  for (*steps = 0; moved > 1e-12; ++*steps) {
    if (*steps == MOST_STEPS) return refuse(BAD_INPUT, "pagerank: the scores do not settle");
    const mint status = advance(web, damping, &moved);
    if (status != 0) return status;
  }
  return 0;
}

/* Best first: the order of the negated scores, since of equals an order keeps the first. */
static mint print(Web *web, mreal damping, mint steps, mint shown) {
  const mreal minus = -1;
  MTensor *order = NULL, *sign = web->record->runtime->sharedRankZero(&minus, TORVANE_TYPE_REAL, 0);
  mint status = web->record->runtime->binary(&web->next, web->scores, sign, TIMES, TORVANE_TYPE_REAL);
  if (status == 0) status = CALL(web->record, "Ordering", &order, &web->next);
  if (status == 0) {
    printf("%s: %d pages, %d links, damping %g, %d steps\n", web->path, web->count,
           *web->record->dimensions(web->links), damping, steps);
    printf("%4s %-32s %12s %5s %5s\n", "rank", "page", "score", "in", "out");
  }
  for (mint i = 0; status == 0 && i < web->count && i < shown; i++) {
    const mint k = web->record->integerData(order)[i] - 1;
    const Page *page = &web->pages[k];
    printf("%4d %-32s %12.9f %5d %5d\n", i + 1, page->name, scoresOf(web, web->scores)[k], page->in,
           page->out);
  }
  web->record->deleteTensor(order);
  return status;
}

static mint rankPages(Web *web, mreal damping, mint shown) {
  mint steps = 0, status = readWeb(web);
  if (status == 0) status = takeLinks(web);
  if (status == 0) status = makeMatrix(web);
  if (status == 0) status = makeScores(web);
  if (status == 0) status = iterate(web, damping, &steps);
  return status != 0 ? status : print(web, damping, steps, shown);
}

static bool readReal(const char *word, mreal low, mreal high, mreal *value) {
  char *end;
  *value = strtod(word, &end);
  return end != word && *end == '\0' && *value >= low && *value <= high;
}

mint TorvaneLibrary_entry(TorvaneLibraryData *record, int argc, char **argv) {
  mreal damping = 0.85, shown = MOST_PAGES;
  if (argc < 1 || argc > 3) return WRONG_WORDS;
  if (argc > 1 && !readReal(argv[1], 0, 0.999, &damping))
    return refuse(BAD_INPUT, "pagerank: DAMPING must be a number of 0 to 0.999, not \"%s\"", argv[1]);
  if (argc > 2 && !readReal(argv[2], 0, MOST_PAGES, &shown))
    return refuse(BAD_INPUT, "pagerank: SHOWN must be a number of 0 to %d, not \"%s\"", MOST_PAGES, argv[2]);
  Web web = {.record = record, .path = argv[0]};
  const mint status = rankPages(&web, damping, (mint)shown);
  forget(&web);
  return status;
}
