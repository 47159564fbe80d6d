// How types, names and texts of a program are written in C. In the wide form integers are reals.
#ifndef COMPILER_TEXT_H
#define COMPILER_TEXT_H

#include "syntax.h"

#include <string_view>

Element inForm(Element element, bool wide);

std::string typeInC(Element element, bool wide);       // "mreal"
std::string declared(Type type, bool wide);            // "MTensor *", or the type and a blank
std::string typeNumberInC(Element element, bool wide); // "TORVANE_TYPE_REAL"
std::string suffixInC(Element element, bool wide);     // "_r"
std::string nameInC(const Variable &variable);         // ends in a number: no word of C, and no function
std::string quotedInC(std::string_view text);          // a string literal
std::string commentInC(std::string_view text);         // what may stand in a comment
std::string returnFrom(const Function &function, bool wide); // " return 0;"

#endif
