// What the loops of conversions at several processor levels have in common. Outside the namespace of the
// levels, since it crosses from one to another: see elementwise/levels.h.
#pragma once

#include <torvane/types.h>

namespace torvane_loops {

// A conversion as a loop sees it.
struct Conversion {
  mint method; // kCheck, kCoerce, kRound, kScale; a loop refuses all others
  bool clips;
  bool isSymmetric;        // the low bound of a signed target is one above its least value
  mreal tolerance, factor; // of the agreement of reals: agreement.h
};

// Converts elements until one fails. Status: those before it are converted, it and those behind untouched.
using ConversionLoop = mint (*)(const Conversion &conversion, void *to, const void *from, mint count);

// The loops of a class of sources, by width from the narrowest on, and by the target's tag less one. Null
// where source and target are one type and nothing but a copy is to be made.
template <int sources> struct ConversionsFrom { ConversionLoop loop[sources][12]; };

extern const ConversionsFrom<4> fromsigned_baseline, fromsigned_avx2, fromsigned_avx512;
extern const ConversionsFrom<4> fromunsigned_baseline, fromunsigned_avx2, fromunsigned_avx512;
extern const ConversionsFrom<2> fromreal_baseline, fromreal_avx2, fromreal_avx512;
extern const ConversionsFrom<2> fromcomplex;

} // namespace torvane_loops
