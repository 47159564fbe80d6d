// torvanec PROGRAM.tn [-o LIBRARY.so | --emit-c [FILE.c] | --run [--style 0|1|2]]
//
// Compiles a program to C and that, by the system's compiler, to a compiled library: PROGRAM.so in this
// folder where nothing else is asked for. --run hands it to the host and leaves nothing. The C compiler, its
// flags and the host are those of the build; TORVANEC_CC, TORVANEC_FLAGS and TORVANEC_HOST name others.
//
// Exit status: 0 done, 1 an error in the program, 2 anything else; with --run the host's.
#include "checker.h"
#include "emitter.h"
#include "parser.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>

#include <spawn.h>
#include <sys/wait.h>

extern char **environ;

namespace {

namespace fs = std::filesystem;
using Words = std::vector<std::string>;

struct Job {
  fs::path program, output;
  bool emitsC = false, runs = false;
  std::string style = {}; // where it is asked for
};

struct Refusal {
  std::string message;
};

const char kUsage[] =
    "usage: torvanec PROGRAM.tn [-o LIBRARY.so | --emit-c [FILE.c] | --run [--style 0|1|2]]";

Job jobOf(const Words &words) {
  Job job;
  for (size_t i = 0; i < words.size(); ++i) {
    const bool more = i + 1 < words.size() && !words[i + 1].starts_with('-');
    if (words[i] == "-o" && more)
      job.output = words[++i];
    else if (words[i] == "--emit-c") {
      job.emitsC = true;
      if (more && !job.program.empty()) job.output = words[++i];
    } else if (words[i] == "--run")
      job.runs = true;
    else if (words[i] == "--style" && more)
      job.style = words[++i];
    else if (words[i].starts_with('-') || !job.program.empty())
      throw Refusal{kUsage};
    else
      job.program = words[i];
  }
  const bool clashes = (job.runs && (job.emitsC || !job.output.empty())) || (!job.runs && !job.style.empty());
  if (job.program.empty() || clashes) throw Refusal{kUsage};
  if (job.output.empty() && !job.emitsC) job.output = job.program.stem().string() + ".so";
  return job;
}

std::string contents(const fs::path &path) {
  std::ifstream file(path, std::ios::binary);
  if (!file.is_open() || fs::is_directory(path)) throw Refusal{"torvanec: cannot read " + path.string()};
  return {std::istreambuf_iterator<char>(file), {}};
}

void write(const fs::path &path, const std::string &text) {
  std::ofstream file(path, std::ios::binary);
  file << text;
  file.close();
  if (!file) throw Refusal{"torvanec: cannot write " + path.string()};
}

std::string compiled(const fs::path &path) {
  const std::string source = contents(path);
  Program program = parse(tokensOf(source));
  check(program);
  return emit(program, path.filename().string());
}

std::string setting(const char *name, const char *otherwise) {
  const char *value = std::getenv(name);
  return value == nullptr ? otherwise : value;
}

Words split(const std::string &text) {
  std::istringstream words(text);
  return {std::istream_iterator<std::string>(words), {}};
}

// Runs a program with these words; its exit status, or 2 where it could not run or did not exit.
int run(Words words) {
  std::vector<char *> arguments;
  for (std::string &word : words) arguments.push_back(word.data());
  arguments.push_back(nullptr);
  pid_t child = 0;
  if (posix_spawnp(&child, arguments[0], nullptr, nullptr, arguments.data(), environ) != 0)
    throw Refusal{"torvanec: cannot run " + words[0]};
  int status = 0;
  if (waitpid(child, &status, 0) != child || !WIFEXITED(status)) return 2;
  return WEXITSTATUS(status);
}

void build(const fs::path &source, const fs::path &library) {
  Words words = split(setting("TORVANEC_CC", TORVANEC_CC));
  for (const char *word :
       {"-std=c11", "-O2", "-Wall", "-Wextra", "-Werror", "-fPIC", "-shared", "-fexceptions"})
    words.emplace_back(word);
  for (const std::string &word : split(setting("TORVANEC_FLAGS", TORVANEC_FLAGS))) words.push_back(word);
  for (const char *word : {"-I" TORVANEC_INCLUDE, "-I" TORVANEC_EXAMPLES}) words.emplace_back(word);
  words.insert(words.end(), {source.string(), "-o", library.string(), "-lm"});
  if (run(words) != 0) throw Refusal{"torvanec: the C compiler failed"};
}

// A folder that goes with its owner.
struct Workshop {
  fs::path path;
  Workshop() {
    std::string name = (fs::temp_directory_path() / "torvanec-XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr) throw Refusal{"torvanec: cannot make a folder for the C text"};
    path = name;
  }
  Workshop(const Workshop &) = delete;
  ~Workshop() {
    std::error_code ignored;
    fs::remove_all(path, ignored);
  }
};

int perform(const Job &job) {
  const std::string text = compiled(job.program);
  if (job.emitsC && job.output.empty()) return std::fputs(text.c_str(), stdout) < 0 ? 2 : 0;
  if (job.emitsC) return write(job.output, text), 0;
  const Workshop workshop;
  const fs::path source = workshop.path / "program.c";
  write(source, text);
  const fs::path library = job.runs ? workshop.path / job.output.filename() : fs::absolute(job.output);
  build(source, library);
  if (!job.runs) return 0;
  Words words = {setting("TORVANEC_HOST", TORVANEC_HOST)};
  if (!job.style.empty()) words.insert(words.end(), {"--style", job.style});
  words.push_back(library.string());
  return run(words);
}

} // namespace

int main(int argc, char **argv) {
  Job job;
  try {
    job = jobOf(Words(argv + 1, argv + argc));
    return perform(job);
  } catch (const Complaint &complaint) {
    std::fprintf(stderr, "%s:%d:%d: error: %s\n", job.program.c_str(), complaint.position.line,
                 complaint.position.column, complaint.message.c_str());
    return 1;
  } catch (const Refusal &refusal) {
    std::fprintf(stderr, "%s\n", refusal.message.c_str());
  } catch (const std::exception &error) {
    std::fprintf(stderr, "torvanec: %s\n", error.what());
  }
  return 2;
}
