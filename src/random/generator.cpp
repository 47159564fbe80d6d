#include "generator.h"

#include "../runtime/memory.h"
#include "draws.h"
#include "name_copy.h"

namespace torvane {

RandomGenerator *adopt(RandomGenerator *generator, RandomGeneratorMethod *method) {
  if (generator == nullptr) return nullptr;
  auto *info = static_cast<AdoptedInfo *>(allocate(sizeof(AdoptedInfo), 0, kFatal));
  *info = {{method->id, copyOfName(method->name), 0}, method};
  generator->info = &info->shown;
  return generator;
}

RandomGenerator *cloneGenerator(RandomGenerator *generator) {
  RandomGeneratorMethod *method = methodOf(generator);
  return adopt(method->clone(generator), method);
}

void retain(RandomGenerator *generator) {
  RandomGeneratorInfo *info = generator->info;
  if (info->refCount >= 0) ++info->refCount;
}

void release(RandomGenerator *generator) {
  RandomGeneratorInfo *info = generator->info;
  if (info == nullptr || info->refCount < 1 || --info->refCount > 0) return;
  RandomGeneratorMethod *method = methodOf(generator);
  torvane::free(info->name);
  torvane::free(info);
  method->free(generator);
}

} // namespace torvane

using namespace torvane;

RandomGenerator *RandomGenerator_newGeneric() {
  auto *functions =
      static_cast<RandomGeneratorFunctions *>(allocate(sizeof(RandomGeneratorFunctions), 0, kFatal));
  *functions = {nullptr, nullptr, Generic_randomMIntegers, Generic_randomMReals, {}};
  auto *generator = static_cast<RandomGenerator *>(allocate(sizeof(RandomGenerator), 0, kFatal));
  *generator = {nullptr, functions, nullptr, nullptr};
  return generator;
}

RandomGenerator *RandomGenerator_copyGeneric(RandomGenerator *generator) {
  RandomGenerator *copy = RandomGenerator_newGeneric();
  *copy->functions = *generator->functions;
  copy->functions->reserved[2] = nullptr;
  copy->seed = generator->seed;
  return copy;
}

void RandomGenerator_deleteGeneric(RandomGenerator *generator) {
  torvane::free(generator->functions);
  torvane::free(generator);
}

RandomGetBits Runtime_RandomGenerator_getBitFunction(RandomGenerator *generator) {
  return generator->functions->getBits;
}

mint RandomDistributionFunctionArray_copy() { return 0; }
void RandomDistributionFunctionArray_delete() {}
