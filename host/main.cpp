// main.cpp: ras-cim, a command-line CIM host that drives the provider module as a CIMOM does.
#include <iostream>
#include <stdexcept>

#include "Options.hpp"
#include "Session.hpp"

namespace {

constexpr int kUsageStatus = 2;

}  // namespace

int main(int argc, char** argv) {
  rascim::Options options;
  try {
    options = rascim::parseOptions(argc, argv);
  } catch (const std::invalid_argument& e) {
    std::cerr << "ras-cim: " << e.what() << '\n';
    return kUsageStatus;
  }
  if (options.help) {
    std::cout << rascim::helpText();
    return 0;
  }
  return rascim::Session(std::move(options)).run();
}
