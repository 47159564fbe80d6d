// Calls of outer products, by export and by name, and a model that walks every combination.
#pragma once

#include "dot_models.h"

#include "algorithms/registry.h"
#include "linalg/outer.h"
#include "runtime/memory.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>

namespace torvane::test {

enum Kind { kList, kPlus, kTimes };
inline constexpr Kind kKinds[] = {kList, kPlus, kTimes};

// Tensors and their levels, which keep themselves.
struct Call {
  std::vector<Tensor> tensors;
  std::vector<mint> levels;

  Call() = default;
  Call(Call &&) = default;
  Call clone() const {
    Call copy;
    copy.levels = levels;
    for (const Tensor &tensor : tensors) {
      copy.tensors.emplace_back(MTensor_new());
      MTensor_copy(copy.tensors.back().get(), tensor.get());
    }
    return copy;
  }
  Call &add(Tensor tensor, mint level) {
    tensors.push_back(std::move(tensor));
    levels.push_back(level);
    return *this;
  }
  std::vector<MTensor *> handles() const {
    std::vector<MTensor *> all;
    for (const Tensor &tensor : tensors) all.push_back(tensor.get());
    return all;
  }
  mint count() const { return mint(tensors.size()); }

  mint run(Kind kind, MTensor **slot, mint flags = 0, bool hasLevels = true) const {
    const auto all = handles();
    const mint *where = hasLevels ? levels.data() : nullptr;
    if (kind == kList) return MTensor_outerList(slot, count(), all.data(), where);
    return (kind == kPlus ? MTensor_outerPlus : MTensor_outerTimes)(slot, count(), all.data(), where, flags);
  }
  mint runByName(Kind kind, MTensor **slot, mint flags = 0) const {
    auto all = handles();
    auto where = levels;
    std::vector<void *> arguments;
    for (MTensor *&handle : all) arguments.push_back(&handle);
    for (mint &level : where) arguments.push_back(&level);
    if (kind != kList) arguments.push_back(&flags);
    const auto handler = kind == kList ? handleOuterList : kind == kPlus ? handleOuterPlus : handleOuterTimes;
    return handler(nullptr, mint(arguments.size()), arguments.data(), slot);
  }
};

inline mint plus(mint x, mint y) { return mint(uint32_t(x) + uint32_t(y)); }
inline mint times(mint x, mint y) { return mint(uint32_t(x) * uint32_t(y)); }
inline mreal plus(mreal x, mreal y) { return x + y; }
inline mreal times(mreal x, mreal y) { return x * y; }
inline mcomplex plus(mcomplex x, mcomplex y) { return {x.re + y.re, x.im + y.im}; }
inline mcomplex times(mcomplex x, mcomplex y) {
  const volatile mreal rr = x.re * y.re, ii = x.im * y.im, ri = x.re * y.im, ir = x.im * y.re;
  return {rr - ii, ri + ir};
}

inline size_t product(const Extents &extents) {
  size_t count = 1;
  for (const mint extent : extents) count *= size_t(extent);
  return count;
}

struct Shape {
  Extents leading, trailing;
};
inline Shape shapeOf(const Tensor &tensor, mint level) {
  const Extents all = extentsOf(tensor);
  return {Extents(all.begin(), all.begin() + level), Extents(all.begin() + level, all.end())};
}

inline Extents modelExtents(const Call &call, Kind kind) {
  Extents extents;
  for (size_t i = 0; i < call.tensors.size(); ++i) {
    const Extents leading = shapeOf(call.tensors[i], call.levels[i]).leading;
    extents.insert(extents.end(), leading.begin(), leading.end());
  }
  if (kind == kList) extents.push_back(call.count());
  const Extents trailing = shapeOf(call.tensors[0], call.levels[0]).trailing;
  extents.insert(extents.end(), trailing.begin(), trailing.end());
  return extents;
}

// Every combination of leading positions in turn, the last tensor's running fastest.
template <class T> std::vector<T> modelValues(const Call &call, Kind kind) {
  const size_t block = product(shapeOf(call.tensors[0], call.levels[0]).trailing);
  size_t combinations = 1;
  std::vector<size_t> leads;
  for (size_t i = 0; i < call.tensors.size(); ++i) {
    leads.push_back(product(shapeOf(call.tensors[i], call.levels[i]).leading));
    combinations *= leads.back();
  }
  std::vector<T> values;
  for (size_t c = 0; c < combinations; ++c) {
    std::vector<const T *> blocks(leads.size());
    size_t rest = c;
    for (size_t i = leads.size(); i-- > 0; rest /= leads[i])
      blocks[i] = elements<T>(call.tensors[i]) + rest % leads[i] * block;
    if (kind == kList) {
      for (const T *one : blocks) values.insert(values.end(), one, one + block);
      continue;
    }
    for (size_t e = 0; e < block; ++e) {
      T value = blocks[0][e];
      for (size_t i = 1; i < blocks.size(); ++i)
        value = kind == kPlus ? plus(value, blocks[i][e]) : times(value, blocks[i][e]);
      values.push_back(value);
    }
  }
  return values;
}

template <class T>
inline void expectTensor(const MTensor *tensor, const Extents &extents, const std::vector<T> &values) {
  ASSERT_NE(tensor, nullptr);
  EXPECT_TRUE(isValidTensor(tensor));
  EXPECT_EQ(tensor->type, typeOf<T>());
  ASSERT_EQ(extentsOf(tensor), extents);
  const T *first = static_cast<const T *>(tensor->data);
  ASSERT_EQ(std::vector<T>(first, first + tensor->elementCount), values);
}

template <class T> void expectUntouched(const Call &call, const Call &original, size_t except) {
  for (size_t i = 0; i < call.tensors.size(); ++i)
    if (i != except)
      ASSERT_EQ(valuesOf<T>(call.tensors[i]), valuesOf<T>(original.tensors[i])) << "operand " << i;
}

// With the slot empty, used, and holding each operand.
template <class T> void expectInEverySlot(const Call &call, Kind kind, mint flags) {
  const Extents extents = modelExtents(call, kind);
  const std::vector<T> values = modelValues<T>(call, kind);
  const auto viaName = [&](const Call &one, MTensor **slot) { return one.runByName(kind, slot, flags); };
  const auto direct = [&](const Call &one, MTensor **slot) { return one.run(kind, slot, flags); };
  for (const std::function<mint(const Call &, MTensor **)> &run :
       {std::function<mint(const Call &, MTensor **)>(viaName),
        std::function<mint(const Call &, MTensor **)>(direct)}) {
    MTensor *slot = nullptr;
    ASSERT_EQ(run(call, &slot), 0);
    expectTensor(slot, extents, values);
    MTensor_delete(slot);
    const Tensor used = newTensor(TORVANE_TYPE_COMPLEX, {2, 2});
    slot = used.get();
    ASSERT_EQ(run(call, &slot), 0);
    ASSERT_EQ(slot, used.get());
    expectTensor(slot, extents, values);
  }
  for (size_t i = 0; i < call.tensors.size(); ++i) {
    const Call once = call.clone();
    MTensor *slot = once.tensors[i].get();
    ASSERT_EQ(once.run(kind, &slot, flags), 0);
    ASSERT_EQ(slot, once.tensors[i].get());
    expectTensor(slot, extents, values);
    expectUntouched<T>(once, call, i);
  }
}

template <class T> Call randomCall(Samples &samples) {
  Call call;
  const Extents trailing[] = {{}, {}, {1}, {2}, {3, 2}, {20}, {45}};
  const Extents common = trailing[samples.below(7)];
  const mint count = 1 + samples.below(5);
  for (mint i = 0; i < count; ++i) {
    Extents extents;
    const mint level = samples.below(count < 4 ? 4 : 3);
    for (mint j = 0; j < level; ++j) extents.push_back(samples.below(25) == 0 ? 0 : 1 + samples.below(3));
    extents.insert(extents.end(), common.begin(), common.end());
    call.add(samples.tensor<T>(extents, 6), level);
  }
  return call;
}

// A list of one whose last leading dimension is 0 has a shape of its own.
inline bool isOneWithoutElements(const Call &call) {
  return call.count() == 1 && call.tensors[0]->elementCount == 0;
}

// A sum of one is a plain copy, in any slot.
template <class T> void expectCopy(const Call &call, Kind kind) {
  MTensor *slot = nullptr;
  ASSERT_EQ(call.runByName(kind, &slot, 6), 0);
  expectTensor(slot, extentsOf(call.tensors[0]), valuesOf<T>(call.tensors[0]));
  MTensor_delete(slot);
}

template <class T> void expectModel(uint64_t seed) {
  Samples samples(seed);
  const uint32_t used = usedBytesOfThisThread();
  for (int round = 0; round < 250; ++round) {
    const Call call = randomCall<T>(samples);
    for (const Kind kind : kKinds) {
      if (!isOneWithoutElements(call)) expectInEverySlot<T>(call, kind, round % 2 == 0 ? 0 : 2);
      if (call.count() == 1 && kind != kList) expectCopy<T>(call, kind);
      if (testing::Test::HasFatalFailure()) {
        ADD_FAILURE() << "kind " << kind << ", round " << round;
        return;
      }
    }
  }
  EXPECT_EQ(usedBytesOfThisThread(), used);
}

} // namespace torvane::test
