#include "bit_cursor.h"

namespace torvane {

// A fill sets bitsLeft itself; one that fails before it comes to that leaves words that can be read all the
// same.
mint refill(const RandomBuffer *buffer) {
  BufferData *data = buffer->data;
  data->bitsLeft = 32;
  const mint status = buffer->fill(data->words, &data->count, &data->bitsLeft, buffer->source);
  data->index = 0;
  return status;
}

} // namespace torvane
