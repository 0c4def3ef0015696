// The three parallel arrays of the route file: how element i of each is read, continued and
// written by the helper scripts. Shared by the routes and the route table.
#ifndef ZEPH_ROUTEARRAYS_H
#define ZEPH_ROUTEARRAYS_H

#include <optional>
#include <string>

#include "Zeph_CommandRunner.h"

namespace ras {

struct RouteArray {
  const char* readFormat;  // "\tNAME[%d]=%s": element i's word after the "=", quotes included
  const char* prefix;      // "\tNAME"
  const char* readLog;     // logged with that word
  const char* valueLog;    // logged with the value without quotes, if not null
  const char* continuationCommand;    // sed line that adds " \" after element i (value v)
  const char* appendScript;           // NAME i v appends element i
  const char* firstScript;            // writes element 0
  const char* deleteScript;           // i N removes element i of N
  const char* deleteFirstScript;      // removes element 0 of the only route
  const char* removeBackslashScript;  // i v drops the " \" after element i
};

extern const RouteArray kRouteArray;
extern const RouteArray kMaskArray;
extern const RouteArray kMetricArray;

// Where the route classes raise their CIM errors; no line is fixed for them.
inline constexpr char kRouteImplSource[] = "../src/Zeph_NextHopIPRouteImpl";
inline constexpr int kRouteImplLine = 0;

// The text of element `index` without its quotes, empty when the file has no such element.
// `log` replaces the array's own log line for the word read.
std::string readRouteElement(const RouteArray& array, int index, const char* log = nullptr);

// The lines that add `value` as element `index` of an array, all built before either runs: for
// an index above 0 the continuation " \" of the element before it (read now), then the
// append script; for index 0 the first-element script alone.
class ElementAppend {
 public:
  ElementAppend(const RouteArray& array, int index, const CommandArg& value);

  bool valid() const;

  // Runs the continuation (logged), logs `appendLog` and runs the append; valid().
  void run(const char* appendLog) const;

 private:
  std::optional<ShellCommand> continuation_;
  ShellCommand append_;
};

}  // namespace ras

#endif
