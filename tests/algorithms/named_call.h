// Calls of named functions in every state of the result slot, against a result that a model computed.
//
// A model tensor is its extents and one number for each element; the element of a number is of any type, so
// that one model serves the three types and a wrong element cannot pass for a right one.
#pragma once

#include "algorithms/registry.h"
#include "runtime/memory.h"
#include "runtime/startup.h"
#include "support/tensor_builders.h"

#include <gtest/gtest.h>

#include <functional>
#include <numeric>
#include <string>

namespace torvane::test {

inline constexpr mint kTensorTypes[] = {TORVANE_TYPE_INTEGER, TORVANE_TYPE_REAL, TORVANE_TYPE_COMPLEX};

struct ModelTensor {
  Extents extents;
  std::vector<mint> values;
  friend bool operator==(const ModelTensor &, const ModelTensor &) = default;
};

inline size_t countOf(const Extents &extents) {
  return std::accumulate(extents.begin(), extents.end(), size_t{1},
                         [](size_t count, mint extent) { return count * size_t(extent); });
}

inline size_t offsetOf(const Extents &extents, const Extents &index) {
  size_t offset = 0;
  for (size_t i = 0; i < extents.size(); ++i) offset = offset * size_t(extents[i]) + size_t(index[i]);
  return offset;
}
inline mint at(const ModelTensor &model, const Extents &index) {
  return model.values[offsetOf(model.extents, index)];
}

// Every element by its index from 0.
inline ModelTensor modelOf(const Extents &extents, const std::function<mint(const Extents &)> &value) {
  ModelTensor model = {extents, std::vector<mint>(countOf(extents))};
  for (size_t i = 0; i < model.values.size(); ++i) {
    Extents index(extents.size());
    size_t rest = i;
    for (size_t j = extents.size(); j-- > 0; rest /= size_t(extents[j]))
      index[j] = mint(rest % size_t(extents[j]));
    model.values[i] = value(index);
  }
  return model;
}

inline ModelTensor numbered(const Extents &extents, mint first = 1) {
  ModelTensor model = {extents, std::vector<mint>(countOf(extents))};
  std::iota(model.values.begin(), model.values.end(), first);
  return model;
}

inline void storeNumber(const MTensor *tensor, size_t i, mint number) {
  if (tensor->type == TORVANE_TYPE_INTEGER) static_cast<mint *>(tensor->data)[i] = number;
  if (tensor->type == TORVANE_TYPE_REAL) static_cast<mreal *>(tensor->data)[i] = number + 0.5;
  if (tensor->type == TORVANE_TYPE_COMPLEX)
    static_cast<mcomplex *>(tensor->data)[i] = {number + 0.25, -3.0 * number};
}

inline mint readNumber(const MTensor *tensor, size_t i) {
  if (tensor->type == TORVANE_TYPE_INTEGER) return static_cast<mint *>(tensor->data)[i];
  if (tensor->type == TORVANE_TYPE_REAL) return mint(static_cast<mreal *>(tensor->data)[i] - 0.5);
  const mcomplex z = static_cast<mcomplex *>(tensor->data)[i];
  const mint number = mint(z.re - 0.25);
  return z.im == -3.0 * number ? number : INT32_MIN;
}

inline Tensor tensorOfModel(mint type, const ModelTensor &model) {
  Tensor tensor = newTensor(type, model.extents);
  for (size_t i = 0; i < model.values.size(); ++i) storeNumber(tensor.get(), i, model.values[i]);
  return tensor;
}

inline ModelTensor modelOfTensor(const MTensor *tensor) {
  ModelTensor model = {extentsOf(tensor), std::vector<mint>(size_t(tensor->elementCount))};
  for (size_t i = 0; i < model.values.size(); ++i) model.values[i] = readNumber(tensor, i);
  return model;
}

inline Tensor cloneOf(const MTensor *tensor) {
  Tensor copy(MTensor_new());
  MTensor_copy(copy.get(), tensor);
  return copy;
}

// The arguments of a call, which keep themselves.
class NamedCall {
public:
  explicit NamedCall(const char *functionName) : name(functionName) {}
  NamedCall(const NamedCall &other) : name(other.name) {
    for (const Value &value : other.values)
      values.push_back({value.tensor != nullptr ? cloneOf(value.tensor.get()) : nullptr, nullptr,
                        value.integer, value.real, value.isReal});
  }
  NamedCall &tensor(Tensor argument) {
    values.push_back({std::move(argument), nullptr, 0, 0});
    return *this;
  }
  NamedCall &tensor(mint type, const ModelTensor &model) { return tensor(tensorOfModel(type, model)); }
  NamedCall &vector(const std::vector<mint> &entries) {
    return tensor(tensorOf<mint>({mint(entries.size())}, entries));
  }
  NamedCall &integer(mint argument) {
    values.push_back({nullptr, nullptr, argument, 0});
    return *this;
  }
  NamedCall &real(mreal argument) {
    values.push_back({nullptr, nullptr, 0, argument, true});
    return *this;
  }

  mint run(void *result, TorvaneLibraryData *libraryData = nullptr) {
    std::vector<void *> arguments;
    for (Value &value : values) arguments.push_back(pointerTo(value));
    return lookupRuntimeFunction(name.c_str())(libraryData, mint(arguments.size()), arguments.data(), result);
  }

  size_t count() const { return values.size(); }
  MTensor *tensorAt(size_t i) const { return values[i].tensor.get(); }

  const std::string name;

private:
  struct Value {
    Tensor tensor;
    MTensor *handle;
    mint integer;
    mreal real;
    bool isReal = false;
  };
  static void *pointerTo(Value &value) {
    value.handle = value.tensor.get();
    if (value.handle != nullptr) return &value.handle;
    return value.isReal ? static_cast<void *>(&value.real) : &value.integer;
  }
  std::vector<Value> values;
};

// Whether the arguments are bit for bit those of the original, the one at `except` aside.
inline void expectUntouched(const NamedCall &call, const NamedCall &original, size_t except) {
  for (size_t i = 0; i < call.count(); ++i) {
    if (i == except || call.tensorAt(i) == nullptr) continue;
    EXPECT_TRUE(isValidTensor(call.tensorAt(i)));
    EXPECT_EQ(modelOfTensor(call.tensorAt(i)), modelOfTensor(original.tensorAt(i)))
        << call.name << " argument " << i;
  }
}

inline void expectModel(const MTensor *tensor, mint type, const ModelTensor &expected,
                        const std::string &where) {
  ASSERT_NE(tensor, nullptr) << where;
  EXPECT_TRUE(isValidTensor(tensor)) << where;
  EXPECT_EQ(tensor->type, type) << where;
  EXPECT_EQ(extentsOf(tensor), expected.extents) << where;
  EXPECT_EQ(modelOfTensor(tensor).values, expected.values) << where;
}

inline constexpr size_t kNoArgument = size_t(-1);

// The call with the slot empty, with it holding tensors of other shapes, and with it holding each argument.
inline void expectInEverySlot(const NamedCall &call, mint type, const ModelTensor &expected) {
  const uint32_t used = usedBytesOfThisThread();
  {
    NamedCall once(call);
    MTensor *slot = nullptr;
    EXPECT_EQ(once.run(&slot), 0) << call.name;
    expectModel(slot, type, expected, call.name + ", empty slot");
    expectUntouched(once, call, kNoArgument);
    MTensor_delete(slot);
  }
  for (const mint held : kTensorTypes) {
    NamedCall once(call);
    const Tensor reused = tensorOfModel(held, numbered({3, 2}, 900));
    MTensor *slot = reused.get();
    EXPECT_EQ(once.run(&slot), 0) << call.name;
    EXPECT_EQ(slot, reused.get());
    expectModel(slot, type, expected, call.name + ", used slot");
    expectUntouched(once, call, kNoArgument);
  }
  for (size_t i = 0; i < call.count(); ++i) {
    if (call.tensorAt(i) == nullptr) continue;
    NamedCall once(call);
    MTensor *slot = once.tensorAt(i);
    EXPECT_EQ(once.run(&slot), 0) << call.name;
    EXPECT_EQ(slot, once.tensorAt(i));
    expectModel(slot, type, expected, call.name + ", slot with argument " + std::to_string(i));
    expectUntouched(once, call, i);
  }
  EXPECT_EQ(usedBytesOfThisThread(), used) << call.name;
}

// A status, with an empty slot left empty, a used slot left its record and the arguments as they were.
inline void expectRefused(const NamedCall &call, mint status) {
  NamedCall once(call);
  MTensor *slot = nullptr;
  EXPECT_EQ(once.run(&slot), status) << call.name;
  EXPECT_EQ(slot, nullptr) << call.name;
  expectUntouched(once, call, kNoArgument);
  const Tensor reused = tensorOfModel(TORVANE_TYPE_REAL, numbered({3, 2}));
  slot = reused.get();
  EXPECT_EQ(once.run(&slot), status) << call.name;
  EXPECT_EQ(slot, reused.get()) << call.name;
  EXPECT_TRUE(isValidTensor(slot)) << call.name;
  for (size_t i = 0; i < call.count(); ++i) {
    if ((slot = once.tensorAt(i)) == nullptr) continue;
    EXPECT_EQ(once.run(&slot), status) << call.name;
    EXPECT_EQ(slot, once.tensorAt(i)) << call.name;
    expectUntouched(once, call, kNoArgument);
  }
}

// The registry as start-up leaves it.
class NamedFunctions : public testing::Test {
protected:
  NamedFunctions() {
    if (lookupRuntimeFunction("CopyTensor") == unavailableRuntimeFunction)
      for (mint stage : {0, 1}) initializeRuntimeFunctionTable(stage);
  }
};

} // namespace torvane::test
