/* Random numbers: generators, their methods, seeds and snapshots. distributions.h draws from them.
 *
 * Each thread has generators of its own, at most one of a method, and one of them is current; no call here
 * takes a lock, and no generator serves two threads at a time. docs/random.md tells the whole: the methods,
 * what a seed does, in which order bits leave a generator. */
#ifndef TORVANE_RANDOM_H
#define TORVANE_RANDOM_H

#include "types.h"

TORVANE_BEGIN_DECLARATIONS

typedef struct RandomGenerator RandomGenerator;

/* Makes a generator; `parameters` are the method's own and may be null. Null where they are refused. */
typedef RandomGenerator *(*RandomAlloc)(void *parameters);
/* A deep copy in the same state, or null. */
typedef RandomGenerator *(*RandomClone)(RandomGenerator *);
/* Destroys the method's own data and the record. */
typedef void (*RandomFree)(RandomGenerator *);
/* Its result is not inspected. */
typedef mint (*RandomSeed)(RandomGenerator *, const uint32_t *words, mint count);
/* 1 to 32 random bits, in the low end of the word. */
typedef uint32_t (*RandomGetBits)(mint bits, RandomGenerator *);
/* These return a status, 0 on success. */
typedef mint (*RandomGetWords)(uint32_t *destination, mint count, RandomGenerator *);
typedef mint (*RandomMIntegers)(mint *destination, mint count, mint low, mint high, RandomGenerator *);
typedef mint (*RandomMReals)(mreal *destination, mint count, mreal low, mreal high, RandomGenerator *);
/* Writes *count fresh words and sets *bitsLeft to 32. Returns a status. */
typedef mint (*RandomFill)(uint32_t *words, uint32_t *count, uint32_t *bitsLeft, RandomGenerator *inner);

/* What a generator can do; null where it cannot. Each generator owns a table of its own. */
typedef struct RandomGeneratorFunctions {
  RandomGetBits getBits;
  RandomGetWords getWords;
  RandomMIntegers randomMIntegers;
  RandomMReals randomMReals;
  void (*reserved[3])(void); /* null; nothing calls them */
} RandomGeneratorFunctions;

/* Whose a generator is and how many hold it: the thread's slot and pinned snapshots count, a new one starts
 * at 0. A negative count is never changed. */
typedef struct RandomGeneratorInfo {
  mint id; /* of the method */
  char *name;
  mint refCount;
} RandomGeneratorInfo;

struct RandomGenerator {
  RandomGeneratorInfo *info; /* null until a thread adopts the generator */
  RandomGeneratorFunctions *functions;
  RandomSeed seed;
  void *state; /* the method's own; of a buffered generator its RandomBuffer */
};

/* Words that wait to be read, from the high bit of each to its low bit. */
typedef struct BufferData {
  uint32_t *words;
  uint32_t count;    /* words that a fill makes and the cursor may use */
  uint32_t index;    /* the word under the cursor; `count` means that a fill is due */
  uint32_t bitsLeft; /* low bits of words[index] still unread; the bits that were read are zero */
  uint32_t capacity; /* words allocated */
} BufferData;

/* The state of a buffered generator, the outer one; `source`, the inner one, holds the recurrence. */
typedef struct RandomBuffer {
  BufferData *data; /* null for a buffer of no words */
  RandomFill fill;
  RandomGenerator *source;
} RandomBuffer;

typedef struct RandomGeneratorNode {
  uint32_t flags; /* bit 0: the current generator */
  RandomGenerator *generator;
  struct RandomGeneratorNode *next, *prev;
} RandomGeneratorNode;

/* Generators of one thread, to be put back by RandomGeneratorSnapshot_activate. */
typedef struct RandomGeneratorSnapshot {
  RandomGeneratorNode *head;
  void *threadStore; /* null */
  mint pinned;       /* 1 while it holds a reference on each generator */
} RandomGeneratorSnapshot;

/* Adds a method under a copy of `name`; of equal names the latest is found. Only while the library starts:
 * there is no lock. */
TORVANE_API void RandomGeneratorMethod_add(const char *name, RandomAlloc alloc, RandomClone clone,
                                           RandomFree free);

/* A generator that draws integers and reals from bits alone. The method sets getBits, seed and state. */
TORVANE_API RandomGenerator *RandomGenerator_newGeneric(void);
/* With a copy of the functions and the same seed function; state and info null. */
TORVANE_API RandomGenerator *RandomGenerator_copyGeneric(RandomGenerator *generator);
/* Frees the table and the record. */
TORVANE_API void RandomGenerator_deleteGeneric(RandomGenerator *generator);

/* A generator that reads from a buffer of `wordCount` words, empty at first, which `fill` fills. The caller
 * sets the buffer's source. Its getWords writes nothing and returns 11. With no words its bits are zeros, and
 * it draws integers and reals with status 11. */
TORVANE_API RandomGenerator *RandomBuffer_new(RandomFill fill, uint32_t wordCount);
/* With a copy of the words and the cursor; the source is null, for the caller to set. */
TORVANE_API RandomGenerator *RandomBuffer_copy(RandomGenerator *generator);
/* Not the source, which the method's free takes before. */
TORVANE_API void RandomBuffer_delete(RandomGenerator *generator);

/* Null gives null and is ignored by delete. A new buffer is empty: the first read fills it. */
TORVANE_API BufferData *BufferData_new(uint32_t words);
TORVANE_API BufferData *BufferData_copy(const BufferData *data);
TORVANE_API void BufferData_delete(BufferData *data);
/* Drops what is unread. Returns the count of words. */
TORVANE_API uint32_t BufferData_clear(BufferData *data);

/* The calling thread's generator, ready to draw from: one that a snapshot holds is replaced by a clone first.
 * The library's. A thread without one gets the default method, seeded from the clock; null where that one
 * refuses. */
TORVANE_API RandomGenerator *Runtime_GetCurrentRandomGenerator(void);
TORVANE_API RandomGetBits Runtime_RandomGenerator_getBitFunction(RandomGenerator *generator);

/* Seeds with the one word at `seed`, and makes current, method 1 ("ExtendedCA") or 3 ("MersenneTwister"). A
 * null seed selects the method without seeding it. Methods 2 and 4 have no generator here: nothing happens,
 * status 0. Method 0 and below: every generator that the thread holds is seeded, and the current one stays.
 * Status 12 for any other method. */
TORVANE_API mint Runtime_SeedRandom(const uint32_t *seed, mint method);

/* A snapshot, the caller's, with the thread's generator of that method as current; it is made where the
 * thread has none. Seeded by the words, or from the clock where seedCount is below 0; not at all where there
 * are no words and the count is 0. A null method is a capture. Null for an unknown method and refused
 * parameters. */
TORVANE_API RandomGeneratorSnapshot *RandomGenerator_create(const char *method, void *parameters,
                                                            const uint32_t *seed, mint seedCount);
/* A snapshot of all generators of the thread, the caller's; with a seed each is seeded by it. */
TORVANE_API RandomGeneratorSnapshot *RandomGeneratorSnapshot_capture(const uint32_t *seed, mint seedCount);
/* Makes the snapshot's generators the thread's own, and deletes the snapshot. Null is ignored. */
TORVANE_API void RandomGeneratorSnapshot_activate(RandomGeneratorSnapshot *snapshot);
/* Keeps each generator's state as it is: whoever draws from one afterwards draws from a clone. */
TORVANE_API void RandomGeneratorSnapshot_pin(RandomGeneratorSnapshot *snapshot);

/* MT19937-64, its words of 64 bits high half first. Parameters are ignored; there is no state before a seed.
 */
TORVANE_API RandomGenerator *MersenneTwister_alloc(void *parameters);
TORVANE_API RandomGenerator *MersenneTwister_clone(RandomGenerator *generator);
TORVANE_API void MersenneTwister_free(RandomGenerator *generator);

/* Stream 0 to 1023 of a family of small Mersenne Twisters. Parameters: null for stream 0, or a pointer to its
 * number, an mint; null for any other number. */
TORVANE_API RandomGenerator *PMT32_alloc(void *parameters);
TORVANE_API RandomGenerator *PMT32_clone(RandomGenerator *generator);
TORVANE_API void PMT32_free(RandomGenerator *generator);
/* 1 where there is such a stream. */
TORVANE_API mint PMT32_checkParameters(mint stream);
/* The next number of 0 to 1023, around and around, from 0 on; any thread. */
TORVANE_API mint PMT32_getNextIndex(void);

/* A cellular automaton. Parameters: null, or a pointer to three mint, width, step and offset in pairs of
 * words, taken as they are: CA5State_checkParameters is the caller's to ask. */
TORVANE_API RandomGenerator *CA5BufferState_alloc(void *parameters);
TORVANE_API RandomGenerator *CA5BufferState_clone(RandomGenerator *generator);
TORVANE_API void CA5BufferState_free(RandomGenerator *generator);
/* 1 for width >= 52, step >= 1, offset >= 0 and step < width - offset. */
TORVANE_API mint CA5State_checkParameters(mint width, mint step, mint offset);

/* Kept for callers that name them: the first returns 0, and neither does anything. */
TORVANE_API mint RandomDistributionFunctionArray_copy(void);
TORVANE_API void RandomDistributionFunctionArray_delete(void);

TORVANE_END_DECLARATIONS

#endif
