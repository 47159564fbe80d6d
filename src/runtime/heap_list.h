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

// Queues are lists whose first record's `prev` is the last record, so that both ends are at hand.

template <class Record> inline void pushBack(Record *&head, Record *record) {
  record->next = nullptr;
  if (head == nullptr) {
    head = record->prev = record;
    return;
  }
  record->prev = head->prev;
  head->prev->next = record;
  head->prev = record;
}

template <class Record> inline void unlinkFromQueue(Record *&head, Record *record) {
  Record *const next = record->next;
  if (record == head)
    head = next;
  else
    record->prev->next = next;
  if (next != nullptr)
    next->prev = record->prev;
  else if (head != nullptr)
    head->prev = record->prev;
}

} // namespace torvane
