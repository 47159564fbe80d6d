#include "text.h"

Element inForm(Element element, bool wide) { return wide && element == kInteger ? kReal : element; }

std::string typeInC(Element element, bool wide) {
  switch (inForm(element, wide)) {
  case kInteger:
    return "mint";
  case kReal:
    return "mreal";
  case kComplex:
    return "mcomplex";
  default:
    return "bool";
  }
}

std::string declared(Type type, bool wide) {
  return type.isTensor() ? "MTensor *" : typeInC(type.element, wide) + " ";
}

std::string typeNumberInC(Element element, bool wide) {
  switch (inForm(element, wide)) {
  case kInteger:
    return "TORVANE_TYPE_INTEGER";
  case kReal:
    return "TORVANE_TYPE_REAL";
  default:
    return "TORVANE_TYPE_COMPLEX";
  }
}

std::string suffixInC(Element element, bool wide) {
  switch (inForm(element, wide)) {
  case kInteger:
    return "_i";
  case kReal:
    return "_r";
  default:
    return "_c";
  }
}

std::string nameInC(const Variable &variable) {
  return variable.name + "_" + std::to_string(variable.number);
}

// Octal escapes end after three digits, whatever follows; a question mark may be part of a trigraph.
std::string quotedInC(std::string_view text) {
  std::string made = "\"";
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (c == '"' || c == '\\' || c == '?')
      made += {'\\', c};
    else if (c == '\n')
      made += "\\n";
    else if (byte >= 32 && byte < 127)
      made += c;
    else
      for (const char digit : {'\\', static_cast<char>('0' + (byte >> 6)),
                               static_cast<char>('0' + (byte >> 3 & 7)), static_cast<char>('0' + (byte & 7))})
        made += digit;
  }
  return made + '"';
}

std::string commentInC(std::string_view text) {
  std::string made;
  for (const char c : text) made += c < 32 || c == '*' || c == '?' || c == '\\' ? '_' : c;
  return made;
}

std::string returnFrom(const Function &function, bool wide) {
  if (!function.result.isScalar()) return " return;";
  return inForm(function.result.element, wide) == kComplex ? " return (mcomplex){0, 0};" : " return 0;";
}
