#include "functions.h"

#include <algorithm>
#include <array>

namespace {

constexpr Elementwise kElementwise[] = {
    {"sin", 1, kReal},         {"cos", 2, kReal},      {"tan", 3, kReal},      {"sinh", 9, kReal},
    {"cosh", 10, kReal},       {"tanh", 11, kReal},    {"asin", 17, kReal},    {"acos", 18, kReal},
    {"atan", 19, kReal},       {"asinh", 25, kReal},   {"acosh", 26, kReal},   {"atanh", 27, kReal},
    {"exp", 32, kReal},        {"log", 34, kReal},     {"abs", 38, kInteger},  {"arg", 39, kComplex},
    {"conj", 40, kComplex},    {"im", 41, kComplex},   {"re", 42, kComplex},   {"sign", 44, kInteger},
    {"round", 49, kReal},      {"floor", 50, kReal},   {"ceiling", 51, kReal}, {"square", 56, kInteger},
    {"sqrt", 57, kReal},       {"cbrt", 58, kReal},    {"recip", 60, kReal},   {"erf", 75, kReal},
    {"unitize", 78, kInteger}, {"ramp", 81, kInteger},
};

// In the order of their names; of one name the form that is tried first.
constexpr Named kNamed[] = {
    {"Accumulate", "Accumulate", "t", "t", true},
    {"Complement", "Complement", "ts", "t"},
    {"Cross", "Cross", "vv", "t"},
    {"Dimensions", "Dimensions", "t", "n"},
    {"Dot", "DotVV", "vv", "x", true},
    {"Dot", "Dot", "tb", "p", true},
    {"Drop", "Drop", "tk", "t"},
    {"Flatten", "Flatten", "tL", "f"},
    {"IntegerDigits", "IntegerDigits", "ii", "n"},
    {"Intersection", "Intersection", "ts", "t"},
    {"Join", "Join", "ts", "t"},
    {"Max", "MaxIT", "I", "i", false, false, "MaxRT"},
    {"Max", "MaxRT", "X", "r"},
    {"Max", "MaxI", "ii", "i", false, false, "MaxR"},
    {"Max", "MaxR", "rr", "r"},
    {"Median", "Median", "V", "r"},
    {"Min", "MinIT", "I", "i", false, false, "MinRT"},
    {"Min", "MinRT", "X", "r"},
    {"Min", "MinI", "ii", "i", false, false, "MinR"},
    {"Min", "MinR", "rr", "r"},
    {"Norm", "Norm", "V", "r", true},
    {"Ordering", "Ordering", "t", "n"},
    {"RandomInteger", "RandomInteger", "ii", "i", false, true},
    {"RandomIntegers", "RandomIntegers", "iie", "n", false, true},
    {"RandomNormal", "RandomNormal", "rr", "r", false, true},
    {"RandomNormal", "RandomNormal", "rre", "R", false, true},
    {"RandomReal", "RandomReal", "rr", "r", false, true},
    {"RandomReals", "RandomReals", "rre", "R", false, true},
    {"RandomSample", "RandomSample", "ti", "t", false, true},
    {"Reverse", "Reverse", "t", "t"},
    {"RotateLeft", "RotateLeft", "tn", "t"},
    {"RotateRight", "RotateRight", "tn", "t"},
    {"SeedRandom", "SeedRandom", "mi", "-", false, true},
    {"SmallDet", "SmallDet", "D", "r"},
    {"Sort", "Sort", "t", "t"},
    {"Take", "Take", "tk", "t"},
    {"Tally", "Tally", "n", "N"},
    {"Total", "TotalAll", "v", "x", true},
    {"Total", "Total", "M", "d", true},
    {"TotalAll", "TotalAll", "t", "x", true},
    {"Transpose", "Transpose", "M", "t"},
    {"Union", "Union", "t", "t"},
    {"Union", "Union", "ts", "t"},
};

static_assert(std::ranges::is_sorted(kNamed, {}, &Named::name)); // they are found by halving

constexpr std::array<std::string_view, 6> kBuiltins = {"int", "real", "complex", "fill", "range", "size"};

} // namespace

const Elementwise *elementwiseFunction(std::string_view name) {
  const auto *found = std::ranges::find(kElementwise, name, &Elementwise::name);
  return found == std::end(kElementwise) ? nullptr : found;
}

std::span<const Named> namedFunctions(std::string_view name) {
  const auto found = std::ranges::equal_range(kNamed, name, {}, &Named::name);
  return {found.begin(), found.end()};
}

bool isBuiltin(std::string_view name) { return std::ranges::find(kBuiltins, name) != kBuiltins.end(); }
