// Stands in for the tensor room's initialisers until they land.
#include "startup.h"
namespace torvane {
void initializeRankZeroTensors(mint) {}
void initializeEternalTensor(mint) {}
} // namespace torvane
