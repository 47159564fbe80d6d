// Generated from src/scalar/operators.def by tools/generate; not to be edited.
#include "../../scalar/bodies/casts.h"
#include <torvane/scalars.h>

using namespace torvane;

int8_t integer_safe_cast_Integer8_Integer8(int8_t x) {
  return evaluateCast<Integer8, Integer8>(x);
}
uint8_t integer_safe_cast_Integer8_UnsignedInteger8(int8_t x) {
  return evaluateCast<Integer8, UnsignedInteger8>(x);
}
int16_t integer_safe_cast_Integer8_Integer16(int8_t x) {
  return evaluateCast<Integer8, Integer16>(x);
}
uint16_t integer_safe_cast_Integer8_UnsignedInteger16(int8_t x) {
  return evaluateCast<Integer8, UnsignedInteger16>(x);
}
int32_t integer_safe_cast_Integer8_Integer32(int8_t x) {
  return evaluateCast<Integer8, Integer32>(x);
}
uint32_t integer_safe_cast_Integer8_UnsignedInteger32(int8_t x) {
  return evaluateCast<Integer8, UnsignedInteger32>(x);
}
int64_t integer_safe_cast_Integer8_Integer64(int8_t x) {
  return evaluateCast<Integer8, Integer64>(x);
}
uint64_t integer_safe_cast_Integer8_UnsignedInteger64(int8_t x) {
  return evaluateCast<Integer8, UnsignedInteger64>(x);
}
int8_t integer_safe_cast_UnsignedInteger8_Integer8(uint8_t x) {
  return evaluateCast<UnsignedInteger8, Integer8>(x);
}
uint8_t integer_safe_cast_UnsignedInteger8_UnsignedInteger8(uint8_t x) {
  return evaluateCast<UnsignedInteger8, UnsignedInteger8>(x);
}
int16_t integer_safe_cast_UnsignedInteger8_Integer16(uint8_t x) {
  return evaluateCast<UnsignedInteger8, Integer16>(x);
}
uint16_t integer_safe_cast_UnsignedInteger8_UnsignedInteger16(uint8_t x) {
  return evaluateCast<UnsignedInteger8, UnsignedInteger16>(x);
}
int32_t integer_safe_cast_UnsignedInteger8_Integer32(uint8_t x) {
  return evaluateCast<UnsignedInteger8, Integer32>(x);
}
uint32_t integer_safe_cast_UnsignedInteger8_UnsignedInteger32(uint8_t x) {
  return evaluateCast<UnsignedInteger8, UnsignedInteger32>(x);
}
int64_t integer_safe_cast_UnsignedInteger8_Integer64(uint8_t x) {
  return evaluateCast<UnsignedInteger8, Integer64>(x);
}
uint64_t integer_safe_cast_UnsignedInteger8_UnsignedInteger64(uint8_t x) {
  return evaluateCast<UnsignedInteger8, UnsignedInteger64>(x);
}
int8_t integer_safe_cast_Integer16_Integer8(int16_t x) {
  return evaluateCast<Integer16, Integer8>(x);
}
uint8_t integer_safe_cast_Integer16_UnsignedInteger8(int16_t x) {
  return evaluateCast<Integer16, UnsignedInteger8>(x);
}
int16_t integer_safe_cast_Integer16_Integer16(int16_t x) {
  return evaluateCast<Integer16, Integer16>(x);
}
uint16_t integer_safe_cast_Integer16_UnsignedInteger16(int16_t x) {
  return evaluateCast<Integer16, UnsignedInteger16>(x);
}
int32_t integer_safe_cast_Integer16_Integer32(int16_t x) {
  return evaluateCast<Integer16, Integer32>(x);
}
uint32_t integer_safe_cast_Integer16_UnsignedInteger32(int16_t x) {
  return evaluateCast<Integer16, UnsignedInteger32>(x);
}
int64_t integer_safe_cast_Integer16_Integer64(int16_t x) {
  return evaluateCast<Integer16, Integer64>(x);
}
uint64_t integer_safe_cast_Integer16_UnsignedInteger64(int16_t x) {
  return evaluateCast<Integer16, UnsignedInteger64>(x);
}
int8_t integer_safe_cast_UnsignedInteger16_Integer8(uint16_t x) {
  return evaluateCast<UnsignedInteger16, Integer8>(x);
}
uint8_t integer_safe_cast_UnsignedInteger16_UnsignedInteger8(uint16_t x) {
  return evaluateCast<UnsignedInteger16, UnsignedInteger8>(x);
}
int16_t integer_safe_cast_UnsignedInteger16_Integer16(uint16_t x) {
  return evaluateCast<UnsignedInteger16, Integer16>(x);
}
uint16_t integer_safe_cast_UnsignedInteger16_UnsignedInteger16(uint16_t x) {
  return evaluateCast<UnsignedInteger16, UnsignedInteger16>(x);
}
int32_t integer_safe_cast_UnsignedInteger16_Integer32(uint16_t x) {
  return evaluateCast<UnsignedInteger16, Integer32>(x);
}
uint32_t integer_safe_cast_UnsignedInteger16_UnsignedInteger32(uint16_t x) {
  return evaluateCast<UnsignedInteger16, UnsignedInteger32>(x);
}
int64_t integer_safe_cast_UnsignedInteger16_Integer64(uint16_t x) {
  return evaluateCast<UnsignedInteger16, Integer64>(x);
}
uint64_t integer_safe_cast_UnsignedInteger16_UnsignedInteger64(uint16_t x) {
  return evaluateCast<UnsignedInteger16, UnsignedInteger64>(x);
}
int8_t integer_safe_cast_Integer32_Integer8(int32_t x) {
  return evaluateCast<Integer32, Integer8>(x);
}
uint8_t integer_safe_cast_Integer32_UnsignedInteger8(int32_t x) {
  return evaluateCast<Integer32, UnsignedInteger8>(x);
}
int16_t integer_safe_cast_Integer32_Integer16(int32_t x) {
  return evaluateCast<Integer32, Integer16>(x);
}
uint16_t integer_safe_cast_Integer32_UnsignedInteger16(int32_t x) {
  return evaluateCast<Integer32, UnsignedInteger16>(x);
}
int32_t integer_safe_cast_Integer32_Integer32(int32_t x) {
  return evaluateCast<Integer32, Integer32>(x);
}
uint32_t integer_safe_cast_Integer32_UnsignedInteger32(int32_t x) {
  return evaluateCast<Integer32, UnsignedInteger32>(x);
}
int64_t integer_safe_cast_Integer32_Integer64(int32_t x) {
  return evaluateCast<Integer32, Integer64>(x);
}
uint64_t integer_safe_cast_Integer32_UnsignedInteger64(int32_t x) {
  return evaluateCast<Integer32, UnsignedInteger64>(x);
}
int8_t integer_safe_cast_UnsignedInteger32_Integer8(uint32_t x) {
  return evaluateCast<UnsignedInteger32, Integer8>(x);
}
uint8_t integer_safe_cast_UnsignedInteger32_UnsignedInteger8(uint32_t x) {
  return evaluateCast<UnsignedInteger32, UnsignedInteger8>(x);
}
int16_t integer_safe_cast_UnsignedInteger32_Integer16(uint32_t x) {
  return evaluateCast<UnsignedInteger32, Integer16>(x);
}
uint16_t integer_safe_cast_UnsignedInteger32_UnsignedInteger16(uint32_t x) {
  return evaluateCast<UnsignedInteger32, UnsignedInteger16>(x);
}
int32_t integer_safe_cast_UnsignedInteger32_Integer32(uint32_t x) {
  return evaluateCast<UnsignedInteger32, Integer32>(x);
}
uint32_t integer_safe_cast_UnsignedInteger32_UnsignedInteger32(uint32_t x) {
  return evaluateCast<UnsignedInteger32, UnsignedInteger32>(x);
}
int64_t integer_safe_cast_UnsignedInteger32_Integer64(uint32_t x) {
  return evaluateCast<UnsignedInteger32, Integer64>(x);
}
uint64_t integer_safe_cast_UnsignedInteger32_UnsignedInteger64(uint32_t x) {
  return evaluateCast<UnsignedInteger32, UnsignedInteger64>(x);
}
int8_t integer_safe_cast_Integer64_Integer8(int64_t x) {
  return evaluateCast<Integer64, Integer8>(x);
}
uint8_t integer_safe_cast_Integer64_UnsignedInteger8(int64_t x) {
  return evaluateCast<Integer64, UnsignedInteger8>(x);
}
int16_t integer_safe_cast_Integer64_Integer16(int64_t x) {
  return evaluateCast<Integer64, Integer16>(x);
}
uint16_t integer_safe_cast_Integer64_UnsignedInteger16(int64_t x) {
  return evaluateCast<Integer64, UnsignedInteger16>(x);
}
int32_t integer_safe_cast_Integer64_Integer32(int64_t x) {
  return evaluateCast<Integer64, Integer32>(x);
}
uint32_t integer_safe_cast_Integer64_UnsignedInteger32(int64_t x) {
  return evaluateCast<Integer64, UnsignedInteger32>(x);
}
int64_t integer_safe_cast_Integer64_Integer64(int64_t x) {
  return evaluateCast<Integer64, Integer64>(x);
}
uint64_t integer_safe_cast_Integer64_UnsignedInteger64(int64_t x) {
  return evaluateCast<Integer64, UnsignedInteger64>(x);
}
int8_t integer_safe_cast_UnsignedInteger64_Integer8(uint64_t x) {
  return evaluateCast<UnsignedInteger64, Integer8>(x);
}
uint8_t integer_safe_cast_UnsignedInteger64_UnsignedInteger8(uint64_t x) {
  return evaluateCast<UnsignedInteger64, UnsignedInteger8>(x);
}
int16_t integer_safe_cast_UnsignedInteger64_Integer16(uint64_t x) {
  return evaluateCast<UnsignedInteger64, Integer16>(x);
}
uint16_t integer_safe_cast_UnsignedInteger64_UnsignedInteger16(uint64_t x) {
  return evaluateCast<UnsignedInteger64, UnsignedInteger16>(x);
}
int32_t integer_safe_cast_UnsignedInteger64_Integer32(uint64_t x) {
  return evaluateCast<UnsignedInteger64, Integer32>(x);
}
uint32_t integer_safe_cast_UnsignedInteger64_UnsignedInteger32(uint64_t x) {
  return evaluateCast<UnsignedInteger64, UnsignedInteger32>(x);
}
int64_t integer_safe_cast_UnsignedInteger64_Integer64(uint64_t x) {
  return evaluateCast<UnsignedInteger64, Integer64>(x);
}
uint64_t integer_safe_cast_UnsignedInteger64_UnsignedInteger64(uint64_t x) {
  return evaluateCast<UnsignedInteger64, UnsignedInteger64>(x);
}
