// Doubly linked lists threaded through records with `prev` and `next`; the head is a plain pointer and
// the first record's `prev` is null.
#pragma once

namespace torvane {

template <class Record> inline void pushFront(Record *&head, Record *record) {
  record->prev = nullptr;
  record->next = head;
  if (head != nullptr) head->prev = record;
  head = record;
}

template <class Record> inline void unlink(Record *&head, Record *record) {
  if (record->prev != nullptr)
    record->prev->next = record->next;
  else
    head = record->next;
  if (record->next != nullptr) record->next->prev = record->prev;
}

} // namespace torvane
