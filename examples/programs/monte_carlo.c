/* monte_carlo [PATHS [WORKERS [SEED [DATES]]]]: the price of an option on the average of a stock's prices at
 * DATES dates of a year, by simulated paths, with standard errors.
 *
 * The work is cut into a fixed number of streams of random numbers, each with a share of the paths. Workers
 * take streams one after the other, and their results are added in the order of the streams: the figures
 * depend on the seed and never on the number of workers. The geometric average, whose price is known in
 * closed form, runs along: it shows that the simulation is right, and as a control variate it takes most of
 * the error away. */
#include <torvane/torvane.h>

#include <errno.h>
#include <math.h>
#include <pthread.h>
#include <stdatomic.h>
#include <stdbool.h>
#include <stdio.h>
#include <stdlib.h>

enum { STREAMS = 64, BLOCK = 512 /* paths at a time; even, for normals come in pairs */ };

static const double spot = 100, strike = 100, rate = 0.05, volatility = 0.2, maturity = 1; /* years */
static const mint dense[3] = {1, 1, 1};
static const double twoPi = 6.283185307179586;

/* Sums over paths: discounted payoffs of the arithmetic average a and of the geometric average g. */
typedef struct Sums {
  double count, a, g, aa, gg, ag;
} Sums;

typedef struct Task {
  mint stream; /* of the generator */
  mint paths;
  bool done;
  Sums sums;
} Task;

typedef struct Work {
  uint32_t seed;
  mint dates;
  atomic_int next; /* the first task that nobody has taken */
  Task tasks[STREAMS];
} Work;

/* Of one block of paths, one element a path. */
typedef struct Block {
  mreal uniforms[BLOCK], normals[BLOCK];
  mreal logarithms[BLOCK];    /* of the price now */
  mreal prices[BLOCK];        /* now */
  mreal sums[BLOCK];          /* of prices */
  mreal logarithmSums[BLOCK]; /* of their logarithms */
} Block;

/* Box and Muller: a radius and an angle make two normals. 1 - u is never 0. */
static bool drawNormals(Block *block, RandomGenerator *generator) {
  const mint half = BLOCK / 2;
  mreal *radius = block->uniforms, *angle = block->uniforms + half;
  mreal *sines = block->normals, *cosines = block->normals + half;
  if (generator->functions->randomMReals(radius, BLOCK, 0, 1, generator) != 0) return false;
  for (mint i = 0; i < half; i++) radius[i] = 1 - radius[i];
  for (mint i = 0; i < half; i++) angle[i] *= twoPi;
  if (machfunc_d_log(radius, radius, half, dense, TORVANE_CHECK_REALS) != 0) return false;
  for (mint i = 0; i < half; i++) radius[i] *= -2;
  if (machfunc_d_sqrt(radius, radius, half, dense, TORVANE_CHECK_REALS) != 0) return false;
  machfunc_d_sin(sines, angle, half, dense, 0);
  machfunc_d_cos(cosines, angle, half, dense, 0);
  for (mint i = 0; i < half; i++) sines[i] *= radius[i];
  for (mint i = 0; i < half; i++) cosines[i] *= radius[i];
  return true;
}

static bool simulate(Block *block, mint dates, RandomGenerator *generator) {
  const double step = maturity / dates;
  const double drift = (rate - volatility * volatility / 2) * step, spread = volatility * sqrt(step);
  for (mint i = 0; i < BLOCK; i++) {
    block->logarithms[i] = log(spot);
    block->sums[i] = block->logarithmSums[i] = 0;
  }
  for (mint date = 0; date < dates; date++) {
    if (!drawNormals(block, generator)) return false;
    for (mint i = 0; i < BLOCK; i++) block->logarithms[i] += drift + spread * block->normals[i];
    if (machfunc_d_exp(block->prices, block->logarithms, BLOCK, dense, TORVANE_CHECK_REALS) != 0)
      return false;
    for (mint i = 0; i < BLOCK; i++) block->sums[i] += block->prices[i];
    for (mint i = 0; i < BLOCK; i++) block->logarithmSums[i] += block->logarithms[i];
  }
  return true;
}

static double payoff(double average) { return exp(-rate * maturity) * fmax(average - strike, 0); }

/* The first `paths` of a block. */
static void addPayoffs(Sums *sums, const Block *block, mint paths, mint dates) {
  for (mint i = 0; i < paths; i++) {
    const double a = payoff(block->sums[i] / dates), g = payoff(exp(block->logarithmSums[i] / dates));
    sums->count += 1;
    sums->a += a;
    sums->g += g;
    sums->aa += a * a;
    sums->gg += g * g;
    sums->ag += a * g;
  }
}

static bool runPaths(Task *task, mint dates, RandomGenerator *generator) {
  Block block;
  for (mint left = task->paths; left > 0; left -= BLOCK) {
    if (!simulate(&block, dates, generator)) return false;
    addPayoffs(&task->sums, &block, left < BLOCK ? left : BLOCK, dates);
  }
  return true;
}

/* Each stream has a recurrence of its own, and by the second word of its seed a beginning of its own too. */
static void runTask(Task *task, const Work *work) {
  const uint32_t seed[2] = {work->seed, (uint32_t)task->stream};
  RandomGenerator *generator = PMT32_alloc(&task->stream);
  if (generator == NULL) return;
  generator->seed(generator, seed, 2);
  task->done = runPaths(task, work->dates, generator);
  PMT32_free(generator);
}

static void *runWorker(void *argument) {
  Work *work = argument;
  for (int i = atomic_fetch_add(&work->next, 1); i < STREAMS; i = atomic_fetch_add(&work->next, 1))
    runTask(&work->tasks[i], work);
  return NULL;
}

/* The calling thread is one of them; where another does not start, those that did take its tasks. */
static void runWorkers(Work *work, mint workers) {
  pthread_t threads[STREAMS];
  mint started = 0;
  while (started < workers - 1 && pthread_create(&threads[started], NULL, runWorker, work) == 0) started++;
  runWorker(work);
  while (started > 0) pthread_join(threads[--started], NULL);
}

/* The first streams and the last are kept for old programs and have shorter periods. */
static mint nextGoodStream(void) {
  mint stream = PMT32_getNextIndex();
  while (stream < 4 || stream == 1023) stream = PMT32_getNextIndex();
  return stream;
}

/* Of work that is all zero. */
static void shareOut(Work *work, mint paths) {
  for (mint i = 0; i < STREAMS; i++) {
    work->tasks[i].stream = nextGoodStream();
    work->tasks[i].paths = paths / STREAMS + (i < paths % STREAMS);
  }
}

static bool addUp(const Work *work, Sums *total) {
  for (mint i = 0; i < STREAMS; i++) {
    const Sums *sums = &work->tasks[i].sums;
    if (!work->tasks[i].done) return false;
    total->count += sums->count;
    total->a += sums->a;
    total->g += sums->g;
    total->aa += sums->aa;
    total->gg += sums->gg;
    total->ag += sums->ag;
  }
  return true;
}

static double normalDistribution(double x) { return erfc(-x / sqrt(2)) / 2; }

/* The logarithm of a geometric average of lognormal prices is normal. */
static double exactGeometricPrice(mint dates) {
  const double n = dates, variance = volatility * volatility * maturity * (n + 1) * (2 * n + 1) / (6 * n * n);
  const double mean = log(spot) + (rate - volatility * volatility / 2) * maturity * (n + 1) / (2 * n);
  const double d2 = (mean - log(strike)) / sqrt(variance), d1 = d2 + sqrt(variance);
  return exp(-rate * maturity) *
         (exp(mean + variance / 2) * normalDistribution(d1) - strike * normalDistribution(d2));
}

/* (sum of xy - sum of x times sum of y / n) / (n - 1) */
static double covariance(double xy, double x, double y, double n) { return (xy - x * y / n) / (n - 1); }

static int report(const Sums *s, const Work *work) {
  const double n = s->count, exact = exactGeometricPrice(work->dates);
  const double varianceA = covariance(s->aa, s->a, s->a, n), varianceG = covariance(s->gg, s->g, s->g, n);
  const double together = covariance(s->ag, s->a, s->g, n), weight = varianceG > 0 ? together / varianceG : 0;
  const double controlled = s->a / n - weight * (s->g / n - exact);
  const double left = fmax(varianceA - weight * together, 0);
  printf("%.0f paths over %d dates, %d streams of seed %u\n", n, work->dates, STREAMS, work->seed);
  printf("option on the             price  standard error\n");
  printf("geometric average    %10.6f  %10.6f      exact %.6f\n", s->g / n, sqrt(varianceG / n), exact);
  printf("arithmetic average   %10.6f  %10.6f\n", s->a / n, sqrt(varianceA / n));
  printf("  with the control   %10.6f  %10.6f\n", controlled, sqrt(left / n));
  if (fflush(stdout) == 0) return 0;
  perror("monte_carlo: cannot write the report");
  return 1;
}

/* An integer of the range, or a message. */
static bool readArgument(char **arguments, int count, int position, const char *name, long low, long high,
                         long *value) {
  char *end = NULL;
  if (position >= count) return true;
  errno = 0;
  *value = strtol(arguments[position], &end, 10);
  if (errno == 0 && end != arguments[position] && *end == '\0' && *value >= low && *value <= high)
    return true;
  fprintf(stderr, "monte_carlo: %s must be an integer of %ld to %ld, not \"%s\"\n", name, low, high,
          arguments[position]);
  return false;
}

int main(int count, char **arguments) {
  static Work work;
  Sums total = {0};
  long paths = 1 << 18, workers = 2, seed = 1, dates = 50;
  if (count > 5) {
    fprintf(stderr, "usage: monte_carlo [PATHS [WORKERS [SEED [DATES]]]]\n");
    return 2;
  }
  if (!readArgument(arguments, count, 1, "PATHS", 2, 1000000000, &paths) ||
      !readArgument(arguments, count, 2, "WORKERS", 1, STREAMS, &workers) ||
      !readArgument(arguments, count, 3, "SEED", 0, 2147483647, &seed) ||
      !readArgument(arguments, count, 4, "DATES", 1, 100000, &dates))
    return 2;
  InitializeTorvaneRTL(NULL, NULL, NULL);
  work.seed = (uint32_t)seed;
  work.dates = (mint)dates;
  shareOut(&work, (mint)paths);
  runWorkers(&work, (mint)workers);
  if (addUp(&work, &total)) return report(&total, &work);
  fprintf(stderr, "monte_carlo: a stream could not be run\n");
  return 1;
}
