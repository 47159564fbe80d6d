// The compiled library `image` against a plain model: vectors of doubles, one loop an operation.
//
// A sample of the output must be the whole number nearest to the model's, up to rounding in its last bits.
// Where a value lies so near the middle between two levels that rounding decides, the picture is passed over.
#include "compiled_libraries.h"

#include <cmath>
#include <fstream>
#include <functional>
#include <random>
#include <sstream>

namespace {

struct Pixels {
  int rows, columns, channels;
  std::vector<double> values; // from 0 to 1
  bool doubtful = false;

  double at(int r, int c, int k) const {
    return values[static_cast<size_t>((r * columns + c) * channels + k)];
  }
};

using Place = std::function<double(int r, int c, int k)>;

Pixels made(int rows, int columns, int channels, const Place &place) {
  Pixels p{rows, columns, channels, {}};
  for (int r = 0; r < rows; ++r)
    for (int c = 0; c < columns; ++c)
      for (int k = 0; k < channels; ++k) p.values.push_back(place(r, c, k));
  return p;
}

Pixels each(const Pixels &p, const std::function<double(double)> &f) {
  Pixels result = p;
  for (double &value : result.values) value = f(value);
  return result;
}

Pixels left(const Pixels &p) {
  return made(p.columns, p.rows, p.channels,
              [&](int r, int c, int k) { return p.at(c, p.columns - 1 - r, k); });
}

Pixels right(const Pixels &p) {
  return made(p.columns, p.rows, p.channels, [&](int r, int c, int k) { return p.at(p.rows - 1 - c, r, k); });
}

Pixels flip(const Pixels &p) {
  return made(p.rows, p.columns, p.channels, [&](int r, int c, int k) { return p.at(p.rows - 1 - r, c, k); });
}

Pixels mirror(const Pixels &p) {
  return made(p.rows, p.columns, p.channels,
              [&](int r, int c, int k) { return p.at(r, p.columns - 1 - c, k); });
}

Pixels gray(const Pixels &p) {
  if (p.channels == 1) return p;
  return made(p.rows, p.columns, 1, [&](int r, int c, int) {
    return 0.299 * p.at(r, c, 0) + 0.587 * p.at(r, c, 1) + 0.114 * p.at(r, c, 2);
  });
}

Pixels blur(const Pixels &p) {
  return made(p.rows, p.columns, p.channels, [&](int r, int c, int k) {
    double sum = 0;
    for (int i = -1; i <= 1; ++i)
      for (int j = -1; j <= 1; ++j)
        sum += p.at((r + i + p.rows) % p.rows, (c + j + p.columns) % p.columns, k);
    return sum / 9;
  });
}

Pixels levels(const Pixels &p, double count) {
  bool doubtful = p.doubtful;
  Pixels result = each(p, [&](double value) {
    const double level = value * (count - 1);
    doubtful = doubtful || std::abs(level - std::floor(level) - 0.5) < 1e-9;
    return std::nearbyint(level) / (count - 1);
  });
  result.doubtful = doubtful;
  return result;
}

struct Operation {
  const char *words;
  std::function<Pixels(const Pixels &)> apply;
};

const std::vector<Operation> &operations() {
  static const std::vector<Operation> all = {
      {"left", left},
      {"right", right},
      {"flip", flip},
      {"mirror", mirror},
      {"gray", gray},
      {"blur", blur},
      {"negative", [](const Pixels &p) { return each(p, [](double x) { return 1 - x; }); }},
      {"gain 1.7", [](const Pixels &p) { return each(p, [](double x) { return x * 1.7; }); }},
      {"gain -0.3", [](const Pixels &p) { return each(p, [](double x) { return x * -0.3; }); }},
      {"levels 2", [](const Pixels &p) { return levels(p, 2); }},
      {"levels 7", [](const Pixels &p) { return levels(p, 7); }},
      {"levels 256", [](const Pixels &p) { return levels(p, 256); }}};
  return all;
}

std::string header(const Pixels &p, int maximum) {
  std::ostringstream text;
  text << (p.channels == 3 ? "P6\n" : "P5\n") << p.columns << ' ' << p.rows << '\n' << maximum << '\n';
  return text.str();
}

std::string fileOf(const Pixels &p, int maximum) {
  std::string text = header(p, maximum);
  for (double value : p.values) {
    const int sample = static_cast<int>(std::lround(value * maximum));
    if (maximum > 255) text += static_cast<char>(sample >> 8);
    text += static_cast<char>(sample & 255);
  }
  return text;
}

std::string contentOf(const std::string &path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

// The first sample that is not the nearest to the model's, as a text; empty where there is none.
std::string difference(const std::string &content, const Pixels &want, int maximum) {
  const std::string start = header(want, maximum);
  const size_t width = maximum > 255 ? 2 : 1;
  if (content.compare(0, start.size(), start) != 0) return "header: " + content.substr(0, start.size());
  if (content.size() != start.size() + width * want.values.size()) return "size";
  for (size_t i = 0; i < want.values.size(); ++i) {
    const auto *bytes = reinterpret_cast<const unsigned char *>(content.data()) + start.size() + width * i;
    const int got = width == 2 ? 256 * bytes[0] + bytes[1] : bytes[0];
    const double value = std::fmin(std::fmax(want.values[i] * maximum, 0), maximum);
    if (std::abs(got - value) > 0.5 + 1e-6)
      return "sample " + std::to_string(i) + ": " + std::to_string(got) + ", not " + std::to_string(value);
  }
  return "";
}

class Image : public LibraryTest {
protected:
  std::mt19937 random{1};

  int pick(int below) { return static_cast<int>(random() % static_cast<unsigned>(below)); }

  Pixels randomPixels(int maximum) {
    return made(1 + pick(20), 1 + pick(20), pick(2) == 0 ? 1 : 3,
                [&](int, int, int) { return static_cast<double>(pick(maximum + 1)) / maximum; });
  }

  void run(const Pixels &input, int maximum, const std::string &words, const Pixels &want, bool deep) {
    std::ofstream(path, std::ios::binary) << fileOf(input, maximum);
    std::vector<std::string> all = {path, path};
    std::istringstream text(words + (deep ? " deep" : ""));
    for (std::string word; text >> word;) all.push_back(word);
    testing::internal::CaptureStdout();
    const mint status = call(imageEntry, record, all);
    testing::internal::GetCapturedStdout();
    ASSERT_EQ(status, 0) << words;
    ASSERT_EQ(difference(contentOf(path), want, deep ? 65535 : 255), "") << words << ", of " << maximum;
  }
};

TEST_F(Image, EachOperationAgreesWithAPlainModel) {
  for (const Operation &operation : operations())
    for (int maximum : {255, 65535, 1, 15, 1000}) {
      const Pixels input = randomPixels(maximum), want = operation.apply(input);
      if (!want.doubtful) run(input, maximum, operation.words, want, pick(2) == 0);
    }
}

TEST_F(Image, ChainsOfOperationsAgreeWithAPlainModel) {
  int doubtful = 0;
  for (int round = 0; round < 300; ++round) {
    const int maximum = std::vector<int>{255, 255, 65535, 100}[static_cast<size_t>(pick(4))];
    const Pixels input = randomPixels(maximum);
    Pixels want = input;
    std::string words;
    for (int left = pick(6); left > 0; --left) {
      const Operation &operation =
          operations()[static_cast<size_t>(pick(static_cast<int>(operations().size())))];
      const bool before = want.doubtful;
      want = operation.apply(want);
      want.doubtful = want.doubtful || before;
      words += std::string(" ") + operation.words;
    }
    if (want.doubtful)
      ++doubtful;
    else
      run(input, maximum, words, want, pick(2) == 0);
  }
  EXPECT_LT(doubtful, 60);
}

TEST_F(Image, EverySampleOfEveryDepthComesBackAsItWas) {
  for (int maximum : {255, 65535}) {
    const Pixels all =
        made(maximum == 255 ? 1 : 256, 256, 1, [&](int r, int c, int) { return (256.0 * r + c) / maximum; });
    run(all, maximum, "", all, maximum > 255);
    EXPECT_EQ(contentOf(path), fileOf(all, maximum));
  }
}

TEST_F(Image, TheShippedPictureIsWhatItsFormulaSays) {
  std::string want;
  for (int r = 0; r < 72; ++r)
    for (int c = 0; c < 96; ++c) {
      const int x = 2 * c - 95, y = 2 * r - 71, d = (x * x + y * y) / 4;
      for (int sample : {255 * c / 95, 255 * r / 71, d / 200 % 2 == 0 ? 255 : 64})
        want += static_cast<char>(sample);
    }
  const std::string content = contentOf(TORVANE_EXAMPLE_DATA "/rings.ppm");
  ASSERT_GT(content.size(), want.size());
  EXPECT_EQ(content.substr(content.size() - want.size()), want);
  EXPECT_EQ(content.substr(0, 3), "P6\n");
  EXPECT_NE(content.find("\n96 72\n255\n"), std::string::npos);
}

} // namespace
