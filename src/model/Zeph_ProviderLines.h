// The fixed source lines that a per-class provider's exceptions carry, and the defaults of
// a class's provider traits.
#ifndef ZEPH_PROVIDERLINES_H
#define ZEPH_PROVIDERLINES_H

namespace ras {

// One line per throw site of the provider template. A class whose lines differ gives its own.
struct ProviderLines {
  int createRefused = 206;
  int deleteRefused = 253;
  int changeNotStarted = 299;
  int aboveMaximum = 334;
  int belowMinimum = 342;
  int tooLong = 334;  // no line of its own is fixed: the first check site is used
  int invalidValue = 382;
  int setterFailed = 388;
  int valuesInvalid = 402;
  int changeNotCommitted = 409;
  int methodNotFound = 432;
  int keyNotReadable = 527;
  int pathKeyMissing = 540;
  int pathKeyNull = 545;
  int pathNoInstance = 559;
  int instanceKeyMissing = 571;
  int instanceKeyNull = 576;
  int instanceNoInstance = 590;
};

// What every class's traits start from: wrapper, abstract manager, the manager that
// initialize installs (the abstract, empty one until the class has an implementation),
// and the template's line numbers.
template <class W, class M>
struct ClassTraits {
  using Wrapper = W;
  using Manager = M;
  using ImplManager = M;
  static constexpr ProviderLines kLines{};
};

}  // namespace ras

#endif
