// TORapi.cpp: the string utility of libTORapi.so.
#include "TORapi.h"

extern "C" char* osStrUpr(char* text) {
  if (text == nullptr) return text;
  for (char* c = text; *c != '\0'; ++c) {
    if (*c >= 'a' && *c <= 'z') *c = static_cast<char>(*c - 'a' + 'A');
  }
  return text;
}
