// From words to a tree, by recursive descent.
//
//   program    = { function | statement }
//   function   = "fn" name "(" [ name ":" type { "," name ":" type } ] ")" [ ":" type ] block
//   type       = ( "int" | "real" | "complex" ) [ "[" { "," } "]" ]
//   block      = "{" { statement } "}"
//   statement  = "let" name [ ":" type ] "=" expression | name [ index ] "=" expression
//              | "if" expression block [ "else" ( block | if ) ] | "while" expression block
//              | "for" name "=" expression "to" expression [ "step" expression ] block
//              | "return" [ expression ] | "print" arguments | expression
//   expression = operators by rising strength: or; and; not; == != < <= > >=; + -; * / // %; unary -; ^
//   primary    = number | text | name | name arguments | "(" expression ")" | literal, each with any index
//   literal    = "[" expression { "," expression } { ";" expression { "," expression } } "]"
//
// A statement ends at a line end, a semicolon or the brace that ends its block.
#ifndef COMPILER_PARSER_H
#define COMPILER_PARSER_H

#include "lexer.h"
#include "syntax.h"

Program parse(std::vector<Token> tokens);

#endif
