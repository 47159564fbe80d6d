// A place in a program's text, and the one way in which a compilation ends early: a complaint about a place.
#ifndef COMPILER_SOURCE_H
#define COMPILER_SOURCE_H

#include <string>

struct Position {
  int line = 1, column = 1; // from 1, columns in bytes
};

struct Complaint {
  Position position;
  std::string message;
};

[[noreturn]] inline void complain(Position position, std::string message) {
  throw Complaint{position, std::move(message)};
}

#endif
