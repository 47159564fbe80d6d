// Plain loops, Eigen and xtensor for the operations of bench_elementwise.
//
// The plain loop is what a careful programmer would leave to the compiler at -O3 -march=native; a checked one
// gathers its overflows and looks at them once, so that it has lanes too.
#include "elementwise_peers.h"

#include <Eigen/Core>
#include <cmath>
#include <complex>
#include <map>

#if __has_include(<xtensor/xadapt.hpp>)
#define HAS_XTENSOR 1
#if __has_include(<xsimd/xsimd.hpp>)
#define XTENSOR_USE_XSIMD 1
#endif
#include <xtensor/xadapt.hpp>
#include <xtensor/xmath.hpp>
#include <xtensor/xnoalias.hpp>
#include <xtensor/xtensor.hpp>
#include <xtensor/xview.hpp>
#endif

namespace peers {

namespace {

template <class T> auto eigen(std::vector<T> &values) {
  return Eigen::Map<Eigen::Array<T, Eigen::Dynamic, 1>>(values.data(), Eigen::Index(values.size()));
}
auto eigenRows(std::vector<mreal> &values, std::size_t rows) {
  return Eigen::Map<Eigen::Array<mreal, Eigen::Dynamic, Eigen::Dynamic, Eigen::RowMajor>>(
      values.data(), Eigen::Index(rows), Eigen::Index(values.size() / rows));
}

template <class Result, class X, class F> Run loop(std::vector<Result> &result, std::vector<X> &x, F f) {
  return [&result, &x, f] {
    Result *__restrict r = result.data();
    const X *a = x.data();
    for (std::size_t k = 0, n = x.size(); k < n; ++k) r[k] = f(a[k]);
  };
}
template <class T, class F> Run loop(std::vector<T> &result, std::vector<T> &x, std::vector<T> &y, F f) {
  return [&result, &x, &y, f] {
    T *__restrict r = result.data();
    const T *a = x.data(), *b = y.data();
    for (std::size_t k = 0, n = x.size(); k < n; ++k) r[k] = f(a[k], b[k]);
  };
}

volatile bool overflowed;

// What is refused: bits that are lost, and the most negative word.
Run checkedSum(Data &d) {
  return [&d] {
    mint *__restrict r = d.words.data();
    const mint *a = d.n.data(), *b = d.m.data();
    mint lost = 0, lowest = 0;
    for (std::size_t k = 0; k < d.count; ++k) {
      r[k] = static_cast<mint>(static_cast<uint32_t>(a[k]) + static_cast<uint32_t>(b[k]));
      lost |= (a[k] ^ r[k]) & (b[k] ^ r[k]);
      lowest = std::min(lowest, r[k]);
    }
    overflowed = lost < 0 || lowest == INT32_MIN;
  };
}
Run checkedProduct(Data &d) {
  return [&d] {
    mint *__restrict r = d.words.data();
    const mint *a = d.n.data(), *b = d.m.data();
    int64_t lost = 0;
    for (std::size_t k = 0; k < d.count; ++k) {
      const int64_t value = int64_t{a[k]} * b[k];
      r[k] = static_cast<mint>(value);
      lost |= (value + INT32_MAX) | (INT32_MAX - value);
    }
    overflowed = lost < 0;
  };
}

volatile mint sink, otherSink;

template <class T, class F> Run reduction(std::vector<T> &x, T start, F f) {
  return [&x, start, f] {
    T value = start;
    for (const T element : x) value = f(value, element);
    sink = static_cast<mint>(value);
  };
}

void plusRows(Data &d) {
  const std::size_t length = d.count / d.rows;
  for (std::size_t i = 0; i < d.rows; ++i) {
    mreal *__restrict r = d.result.data() + i * length;
    const mreal *a = d.x.data() + i * length, b = d.perRow[i];
    for (std::size_t k = 0; k < length; ++k) r[k] = a[k] + b;
  }
}

mint smaller(mint a, mint b) { return a < b ? a : b; }
mint larger(mint a, mint b) { return a > b ? a : b; }

void minmax(Data &d) {
  mint low = INT32_MAX, high = INT32_MIN;
  for (const mint n : d.n) {
    low = smaller(low, n);
    high = larger(high, n);
  }
  sink = low;
  otherSink = high;
}

using Makers = std::map<std::string, std::function<Peers(Data &)>>;

#ifdef HAS_XTENSOR
template <class T> auto xt1(std::vector<T> &values) {
  return xt::adapt(values.data(), values.size(), xt::no_ownership(), std::array{values.size()});
}
auto xt2(std::vector<mreal> &values, std::size_t rows) {
  return xt::adapt(values.data(), values.size(), xt::no_ownership(), std::array{rows, values.size() / rows});
}
#define XTENSOR(...) [&d] { __VA_ARGS__; }
#else
#define XTENSOR(...)                                                                                         \
  Run {}
#endif

Makers realMakers() {
  return {
      {"plus",
       [](Data &d) {
         return Peers {
           loop(d.result, d.x, d.y, [](mreal a, mreal b) { return a + b; }),
               [&d] { eigen(d.result) = eigen(d.x) + eigen(d.y); },
               XTENSOR(auto r = xt1(d.result); xt::noalias(r) = xt1(d.x) + xt1(d.y))
         };
       }},
      {"subtract",
       [](Data &d) {
         return Peers {
           loop(d.result, d.x, d.y, [](mreal a, mreal b) { return a - b; }),
               [&d] { eigen(d.result) = eigen(d.x) - eigen(d.y); },
               XTENSOR(auto r = xt1(d.result); xt::noalias(r) = xt1(d.x) - xt1(d.y))
         };
       }},
      {"times",
       [](Data &d) {
         return Peers {
           loop(d.result, d.x, d.y, [](mreal a, mreal b) { return a * b; }),
               [&d] { eigen(d.result) = eigen(d.x) * eigen(d.y); },
               XTENSOR(auto r = xt1(d.result); xt::noalias(r) = xt1(d.x) * xt1(d.y))
         };
       }},
      {"div",
       [](Data &d) {
         return Peers {
           loop(d.result, d.x, d.y, [](mreal a, mreal b) { return a / b; }),
               [&d] { eigen(d.result) = eigen(d.x) / eigen(d.y); },
               XTENSOR(auto r = xt1(d.result); xt::noalias(r) = xt1(d.x) / xt1(d.y))
         };
       }},
      {"maxabs",
       [](Data &d) {
         return Peers {
           loop(d.result, d.x, d.y, [](mreal a, mreal b) { return std::max(std::fabs(a), std::fabs(b)); }),
               [&d] { eigen(d.result) = eigen(d.x).abs().max(eigen(d.y).abs()); },
               XTENSOR(auto r = xt1(d.result);
                       xt::noalias(r) = xt::maximum(xt::abs(xt1(d.x)), xt::abs(xt1(d.y))))
         };
       }},
      {"sqrt",
       [](Data &d) {
         return Peers {
           loop(d.result, d.x, [](mreal a) { return std::sqrt(a); }),
               [&d] { eigen(d.result) = eigen(d.x).sqrt(); },
               XTENSOR(auto r = xt1(d.result); xt::noalias(r) = xt::sqrt(xt1(d.x)))
         };
       }},
      {"abs",
       [](Data &d) {
         return Peers {
           loop(d.result, d.x, [](mreal a) { return std::fabs(a); }),
               [&d] { eigen(d.result) = eigen(d.x).abs(); },
               XTENSOR(auto r = xt1(d.result); xt::noalias(r) = xt::abs(xt1(d.x)))
         };
       }},
      {"ramp",
       [](Data &d) {
         return Peers {
           loop(d.result, d.x, [](mreal a) { return a > 0 ? a : 0.0; }),
               [&d] { eigen(d.result) = eigen(d.x).max(0.0); },
               XTENSOR(auto r = xt1(d.result); xt::noalias(r) = xt::maximum(xt1(d.x), 0.0))
         };
       }},
      {"whole plus, scalar",
       [](Data &d) {
         return Peers {
           loop(d.result, d.x, [b = d.y[0]](mreal a) { return a + b; }),
               [&d] { eigen(d.result) = eigen(d.x) + d.y[0]; },
               XTENSOR(auto r = xt1(d.result); xt::noalias(r) = xt1(d.x) + d.y[0])
         };
       }},
      {"whole plus, rows",
       [](Data &d) {
         return Peers {
           [&d] { plusRows(d); },
               [&d] { eigenRows(d.result, d.rows) = eigenRows(d.x, d.rows).colwise() + eigen(d.perRow); },
               XTENSOR(auto r = xt2(d.result, d.rows);
                       xt::noalias(r) = xt2(d.x, d.rows) + xt::view(xt1(d.perRow), xt::all(), xt::newaxis()))
         };
       }},
  };
}

Makers integerMakers() {
  return {
      {"sign",
       [](Data &d) {
         return Peers{loop(d.words, d.x, [](mreal a) { return mint{(a > 0) - (a < 0)}; }), {}, {}};
       }},
      {"round",
       [](Data &d) {
         return Peers {
           loop(d.words, d.x, [](mreal a) { return static_cast<mint>(std::nearbyint(a)); }),
               [&d] { eigen(d.words) = eigen(d.x).rint().cast<mint>(); },
               XTENSOR(auto r = xt1(d.words); xt::noalias(r) = xt::cast<mint>(xt::rint(xt1(d.x))))
         };
       }},
      {"floor",
       [](Data &d) {
         return Peers {
           loop(d.words, d.x, [](mreal a) { return static_cast<mint>(std::floor(a)); }),
               [&d] { eigen(d.words) = eigen(d.x).floor().cast<mint>(); },
               XTENSOR(auto r = xt1(d.words); xt::noalias(r) = xt::cast<mint>(xt::floor(xt1(d.x))))
         };
       }},
      {"ceiling",
       [](Data &d) {
         return Peers {
           loop(d.words, d.x, [](mreal a) { return static_cast<mint>(std::ceil(a)); }),
               [&d] { eigen(d.words) = eigen(d.x).ceil().cast<mint>(); },
               XTENSOR(auto r = xt1(d.words); xt::noalias(r) = xt::cast<mint>(xt::ceil(xt1(d.x))))
         };
       }},
      {"checked integer plus",
       [](Data &d) {
         return Peers{checkedSum(d), {}, {}};
       }},
      {"checked integer times",
       [](Data &d) {
         return Peers{checkedProduct(d), {}, {}};
       }},
      {"integer total",
       [](Data &d) {
         return Peers{reduction(d.n, 0, [](mint a, mint b) { return mint(uint32_t(a) + uint32_t(b)); }),
                      [&d] { sink = eigen(d.n).sum(); },
                      {}};
       }},
      {"integer max",
       [](Data &d) {
         return Peers{reduction(d.n, INT32_MIN, larger), [&d] { sink = eigen(d.n).maxCoeff(); }, {}};
       }},
      {"integer min",
       [](Data &d) {
         return Peers{reduction(d.n, INT32_MAX, smaller), [&d] { sink = eigen(d.n).minCoeff(); }, {}};
       }},
      {"integer minmax",
       [](Data &d) {
         return Peers{[&d] { minmax(d); },
                      [&d] {
                        sink = eigen(d.n).minCoeff();
                        otherSink = eigen(d.n).maxCoeff();
                      },
                      {}};
       }},
  };
}

// The platform's library, one call an element.
Makers functionMakers() {
  return {
      {"exp",
       [](Data &d) {
         return Peers{loop(d.result, d.x, [](mreal a) { return std::exp(a); }), {}, {}};
       }},
      {"log",
       [](Data &d) {
         return Peers{loop(d.result, d.x, [](mreal a) { return std::log(a); }), {}, {}};
       }},
      {"sin",
       [](Data &d) {
         return Peers{loop(d.result, d.x, [](mreal a) { return std::sin(a); }), {}, {}};
       }},
      {"cos",
       [](Data &d) {
         return Peers{loop(d.result, d.x, [](mreal a) { return std::cos(a); }), {}, {}};
       }},
      {"tan",
       [](Data &d) {
         return Peers{loop(d.result, d.x, [](mreal a) { return std::tan(a); }), {}, {}};
       }},
      {"tanh",
       [](Data &d) {
         return Peers{loop(d.result, d.x, [](mreal a) { return std::tanh(a); }), {}, {}};
       }},
      {"pow",
       [](Data &d) {
         return Peers{loop(d.result, d.x, d.y, [](mreal a, mreal b) { return std::pow(a, b); }), {}, {}};
       }},
  };
}

} // namespace

void widenRoots(std::vector<mcomplex> &result, const std::vector<mreal> &x) {
  mcomplex *__restrict r = result.data();
  for (std::size_t k = 0; k < x.size(); ++k) {
    if (x[k] < 0)
      r[k] = {0.0, std::sqrt(-x[k])};
    else
      r[k] = {std::sqrt(x[k]), 0.0};
  }
}

Peers peersOf(const std::string &operation, Data &data) {
  static const Makers families[] = {realMakers(), integerMakers(), functionMakers()};
  for (const Makers &makers : families)
    if (const auto found = makers.find(operation); found != makers.end()) return found->second(data);
  return {};
}

} // namespace peers
