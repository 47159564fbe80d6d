// Whatever it is given, the example compiler makes C of it or complains about a place in it. The programs are
// those of examples/compiler/programs, cut off anywhere, with words changed for others, or made of such words
// at random.
#include "compiler/checker.h"
#include "compiler/emitter.h"
#include "compiler/parser.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>

namespace {

namespace fs = std::filesystem;

std::vector<std::string> sources() {
  std::vector<fs::path> paths;
  for (const fs::directory_entry &entry : fs::recursive_directory_iterator(TORVANE_COMPILER_PROGRAMS))
    if (entry.path().extension() == ".tn") paths.push_back(entry.path());
  std::ranges::sort(paths); // the same programs in every run
  std::vector<std::string> texts;
  for (const fs::path &path : paths) {
    std::ifstream file(path);
    texts.emplace_back(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
  }
  return texts;
}

struct Outcome {
  std::string code; // empty where it was refused
  Complaint complaint;
};

Outcome compile(const std::string &source) {
  try {
    Program program = parse(tokensOf(source));
    check(program);
    return {emit(program, "t.tn"), {}};
  } catch (const Complaint &complaint) {
    return {{}, complaint};
  }
}

bool isPlaceIn(const std::string &source, Position place) {
  if (place.line < 1 || place.column < 1) return false;
  size_t start = 0;
  for (int line = 1; line < place.line; ++line) {
    start = source.find('\n', start);
    if (start++ == std::string::npos) return false;
  }
  const size_t end = std::min(source.find('\n', start), source.size());
  return start + static_cast<size_t>(place.column) - 1 <= end;
}

void expectCodeOrComplaint(const std::string &source, int &accepted) {
  const Outcome outcome = compile(source);
  if (!outcome.code.empty())
    ++accepted;
  else {
    EXPECT_FALSE(outcome.complaint.message.empty()) << source;
    EXPECT_TRUE(isPlaceIn(source, outcome.complaint.position)) << source;
  }
}

struct Breaker {
  std::mt19937 random{20261122};
  std::vector<std::string> texts = sources(), words;

  Breaker() {
    for (const std::string &text : texts) try {
        for (const Token &token : tokensOf(text))
          words.push_back(token.kind == TokenKind::LineEnd ? "\n" : token.text);
      } catch (const Complaint &) { // what is no word can be no word here
      }
  }

  size_t below(size_t bound) { return random() % bound; }
  const std::string &text() { return texts[below(texts.size())]; }
  const std::string &word() { return words[below(words.size())]; }

  std::string cutOff() { return text().substr(0, below(text().size())); }

  std::string changed() {
    std::string made = text();
    for (size_t times = 1 + below(3); times > 0; --times)
      made.replace(below(made.size()), below(6), below(4) == 0 ? "" : " " + word() + " ");
    return made;
  }

  std::string babble() {
    std::string made;
    for (size_t count = below(60); count > 0; --count) made += word() + (below(5) == 0 ? "\n" : " ");
    return made;
  }

  std::string bytes() {
    std::string made;
    for (size_t count = below(80); count > 0; --count) made += static_cast<char>(below(256));
    return made;
  }
};

TEST(BrokenPrograms, GiveCodeOrAComplaintAboutAPlace) {
  Breaker breaker;
  ASSERT_GE(breaker.texts.size(), 40u);
  int accepted = 0, count = 0;
  for (; count < 1500; ++count) {
    expectCodeOrComplaint(breaker.cutOff(), accepted);
    expectCodeOrComplaint(breaker.changed(), accepted);
    expectCodeOrComplaint(breaker.babble(), accepted);
    expectCodeOrComplaint(breaker.bytes(), accepted);
  }
  EXPECT_GT(accepted, count / 20);
  EXPECT_LT(accepted, count * 4);
}

TEST(BrokenPrograms, MayNestAsDeeplyAsTheyLike) {
  for (const char *open : {"(", "[", "-", "not ", "f(", "1 + (", "2 ^ ", "if 1 < 2 { ", "if 1 < 2 { } else ",
                           "while 1 < 2 {", "v[", "1 + ", "for i = 1 to 2 {", "fn f() {"}) {
    std::string source;
    for (int depth = 0; depth < 100000; ++depth) source += open;
    EXPECT_TRUE(compile(source).code.empty()) << open;
  }
}

TEST(BrokenPrograms, ACompleteProgramGivesTheSameCodeTwice) {
  for (const std::string &text : sources()) EXPECT_EQ(compile(text).code, compile(text).code);
}

} // namespace
