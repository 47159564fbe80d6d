// Reads the signatures of hand-written exports from the headers, by the compiler's own knowledge of them.
#include "signature.h"

#include <torvane/distributions.h>
#include <torvane/elementwise.h>
#include <torvane/failure.h>
#include <torvane/integers.h>
#include <torvane/library_data.h>
#include <torvane/linalg.h>
#include <torvane/lists.h>
#include <torvane/memory.h>
#include <torvane/numeric_arrays.h>
#include <torvane/operators.h>
#include <torvane/parallel.h>
#include <torvane/parts.h>
#include <torvane/random.h>
#include <torvane/sorting.h>
#include <torvane/sparse_arrays.h>
#include <torvane/startup.h>
#include <torvane/tensor.h>
#include <torvane/text.h>
#include <torvane/tolerance.h>
#include <torvane/transposition.h>
#include <torvane/vectors.h>

#include <cstring>
#include <type_traits>

namespace generate {

namespace {

template <class T> struct Spelling;

template <class T> std::string spell() { return Spelling<T>::text(); }

#define SPELLING(type, spelled)                                                                              \
  template <> struct Spelling<type> {                                                                        \
    static std::string text() { return spelled; }                                                            \
  };
SPELLING(void, "void")
SPELLING(char, "char")
SPELLING(int8_t, "int8_t")
SPELLING(uint8_t, "uint8_t")
SPELLING(int16_t, "int16_t")
SPELLING(uint16_t, "uint16_t")
SPELLING(int32_t, "mint")
SPELLING(uint32_t, "uint32_t")
SPELLING(int64_t, "int64_t")
SPELLING(uint64_t, "uint64_t")
SPELLING(float, "float")
SPELLING(double, "mreal")
SPELLING(mcomplex, "mcomplex")
SPELLING(MTensor, "MTensor")
SPELLING(MNumericArray, "MNumericArray")
SPELLING(MSparseArray, "MSparseArray")
SPELLING(TensorProperty, "TensorProperty")
SPELLING(TorvaneLibraryData, "TorvaneLibraryData")
SPELLING(CompilerError, "CompilerError")
SPELLING(TorvaneUnaryRoutine, "TorvaneUnaryRoutine")
SPELLING(TorvaneBinaryRoutine, "TorvaneBinaryRoutine")
SPELLING(RandomGenerator, "RandomGenerator")
SPELLING(RandomGeneratorSnapshot, "RandomGeneratorSnapshot")
SPELLING(BufferData, "BufferData")
SPELLING(RandomAlloc, "RandomAlloc")
SPELLING(RandomClone, "RandomClone")
SPELLING(RandomFree, "RandomFree")
SPELLING(RandomGetBits, "RandomGetBits")
SPELLING(RandomFill, "RandomFill")
#undef SPELLING

template <class T> struct Spelling<const T> {
  static std::string text() { return "const " + spell<T>(); }
};
template <class T> struct Spelling<T *> {
  static std::string text() {
    const std::string pointee = spell<T>();
    return pointee + (pointee.back() == '*' ? "*" : " *");
  }
};

template <class... T> std::string spellList() {
  std::string list;
  ((list += (list.empty() ? "" : ", ") + spell<T>()), ...);
  return list.empty() ? "void" : list;
}
template <class R, class... T> struct Spelling<R (*)(T...)> {
  static std::string text() { return spell<R>() + " (*)(" + spellList<T...>() + ")"; }
};
template <class T, size_t N> struct Spelling<T[N]> {
  static std::string text() { return spell<T>() + "[" + std::to_string(N) + "]"; }
};
template <class T, size_t N> struct Spelling<const T[N]> {
  static std::string text() { return spell<const T>() + "[" + std::to_string(N) + "]"; }
};

template <class T> std::string llvmType() {
  if constexpr (std::is_void_v<T>)
    return "void";
  else if constexpr (std::is_pointer_v<T>)
    return "ptr";
  else if constexpr (std::is_array_v<T>)
    return "[" + std::to_string(std::extent_v<T>) + " x " +
           llvmType<std::remove_cv_t<std::remove_extent_t<T>>>() + "]";
  else if constexpr (std::is_floating_point_v<T>)
    return sizeof(T) == 4 ? "float" : "double";
  else {
    static_assert(std::is_integral_v<T>, "records do not travel by value through an export");
    return "i" + std::to_string(8 * sizeof(T));
  }
}

template <class T> Type typeOf() {
  using Bare = std::remove_cv_t<T>;
  const bool narrow =
      std::is_integral_v<Bare> && sizeof(std::conditional_t<std::is_void_v<Bare>, char, Bare>) < 4;
  return {spell<T>(), llvmType<Bare>(), !narrow ? "" : std::is_signed_v<Bare> ? "signext" : "zeroext"};
}

template <class T> struct Reader { // data
  static void read(Signature &signature) {
    signature.isData = true;
    signature.isConstant = std::is_const_v<std::remove_all_extents_t<T>>;
    signature.result = typeOf<T>();
  }
};
template <class R, class... P> struct Reader<R(P...)> {
  static void read(Signature &signature) {
    signature.result = typeOf<R>();
    signature.parameters = {Parameter{typeOf<P>(), ""}...};
  }
};

// A word as wide as a pointer: the compiler knows it only as the integer of its size.
void spellWords(Signature &signature) {
  if (signature.name == "Runtime_MTensor_TakeDrop") signature.parameters[3].type.c = "const intptr_t *";
}

template <class T> Signature describe(const char *family, const char *name) {
  Signature signature;
  signature.family = family;
  signature.name = name;
  signature.returnsTwice = std::strcmp(name, "SetJumpStack_PushAux") == 0;
  Reader<T>::read(signature);
  spellWords(signature);
  return signature;
}

} // namespace

std::vector<Signature> handWrittenExports() {
  return {
#define TORVANE_EXPORT(family, name) describe<decltype(::name)>(#family, #name),
#include "exports.def"
#undef TORVANE_EXPORT
  };
}

std::string declare(const Type &type, const std::string &name) {
  if (name.empty()) return type.c;
  return type.c + (type.c.back() == '*' ? "" : " ") + name;
}

std::string prototype(const Signature &signature, const std::string &prefix) {
  std::string text = prefix + declare(signature.result, signature.name) + "(";
  const size_t indent = text.size();
  size_t lineStart = 0;
  for (size_t i = 0; i < signature.parameters.size(); ++i) {
    const bool last = i + 1 == signature.parameters.size();
    const std::string next =
        declare(signature.parameters[i].type, signature.parameters[i].name) + (last ? ")" : ",");
    if (text.size() - lineStart + next.size() + 3 > 110) {
      text.back() == ' ' ? text.pop_back() : void();
      text += "\n" + std::string(indent, ' ');
      lineStart = text.size() - indent;
    }
    text += next + (last ? "" : " ");
  }
  return signature.parameters.empty() ? text + "void)" : text;
}

} // namespace generate
