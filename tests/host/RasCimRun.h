// RasCimRun.h: runs the ras-cim executable of the build with arguments (and optionally a
// batch on standard input) and captures its exit status, standard output and error.
#pragma once

#include <string>
#include <vector>

struct RasCimResult {
  int status;
  std::string out;
  std::string err;
};

RasCimResult runRasCim(const std::vector<std::string>& args, const std::string& input = "");

// The lines of a text, without their newlines.
std::vector<std::string> linesOf(const std::string& text);
