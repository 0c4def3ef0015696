// Random create / modify / delete sequences (fixed seeds) checked after every step against a
// model of the route file's array lines and count. Creations without mask or metric leave
// the arrays of unequal length, so the model follows the helper scripts line by line: an
// append goes after the array's last element line, a continuation edit adds " \" to every
// line holding that element, a deletion renumbers the recognised elements after it.
#include <algorithm>
#include <random>

#include "RouteFixture.h"

namespace {

using client::Lines;

struct ElementLine {
  int index;
  std::string value;
  int continuations;  // " \" suffixes; a line with two is no longer an element to the scripts
  bool recognised() const { return continuations <= 1; }
};

struct ModelArray {
  const char* name;
  std::vector<ElementLine> lines;  // file order

  bool exists(int i) const {
    return std::any_of(lines.begin(), lines.end(), [&](const auto& l) { return l.index == i; });
  }
  // What the module reads: the last line of element i.
  std::string read(int i) const {
    std::string value;
    for (const auto& l : lines)
      if (l.index == i) value = l.value;
    return value;
  }
  void continueElement(int i, const std::string& value) {
    for (auto& l : lines)
      if (l.index == i && l.value == value) ++l.continuations;
  }
  bool recognisedAt(int i) const {
    return std::any_of(lines.begin(), lines.end(),
                       [&](const auto& l) { return l.recognised() && l.index == i; });
  }
  void append(int i, const std::string& value) {
    if (recognisedAt(i)) return;
    std::size_t after = 0;
    for (std::size_t k = 0; k < lines.size(); ++k)
      if (lines[k].recognised()) after = k + 1;
    lines.insert(lines.begin() + after, {i, value, 0});
  }
  void setFirst(const std::string& value) {
    for (auto& l : lines) {
      if (l.recognised() && l.index == 0) {
        l.value = value;
        return;
      }
    }
    const bool more = std::any_of(lines.begin(), lines.end(),
                                  [](const auto& l) { return l.recognised() && l.index > 0; });
    lines.insert(lines.begin(), {0, value, more ? 1 : 0});
  }
  // The module's setter of element i.
  void set(int i, const std::string& value) {
    if (exists(i)) {
      const std::string old = read(i);
      for (auto& l : lines)
        if (l.index == i && l.value == old) l.value = value;
    } else if (i > 0) {
      continueElement(i - 1, read(i - 1));
      append(i, value);
    } else {
      setFirst(value);
    }
  }
  void erase(int i) {
    std::vector<ElementLine> kept;
    for (auto l : lines) {
      if (l.recognised() && l.index == i) continue;
      if (l.recognised() && l.index > i) --l.index;
      kept.push_back(l);
    }
    lines = kept;
  }
  void removeContinuation(int i, const std::string& value) {
    std::string current;
    bool found = false;
    for (const auto& l : lines) {
      if (l.recognised() && l.index == i && !found) {
        current = l.value;
        found = true;
      }
    }
    if (!found || current != value) return;
    for (auto& l : lines)
      if (l.recognised() && l.index == i) l.continuations = 0;
  }
  void render(Lines& out) const {
    for (const auto& l : lines) {
      std::string text =
          std::string("\t") + name + "[" + std::to_string(l.index) + "]=\"" + l.value + "\"";
      for (int k = 0; k < l.continuations; ++k) text += " \\";
      out.push_back(text);
    }
  }
};

struct Model {
  std::vector<std::string> routes;
  ModelArray arrays[3] = {{"ROUTES", {}}, {"NETMASK", {}}, {"METRIC", {}}};

  Lines render() const {
    Lines out = {"declare -r NUMBER_OF_ROUTES=\"" + std::to_string(routes.size()) + "\""};
    for (const auto& a : arrays) a.render(out);
    return out;
  }
  int indexOf(const std::string& address) const {
    return static_cast<int>(std::find(routes.begin(), routes.end(), address) - routes.begin());
  }
  void remove(int i) {
    const int n = static_cast<int>(routes.size());
    for (auto& a : arrays) a.erase(i);
    if (i == n - 1 && n > 1) {
      for (auto& a : arrays) a.removeContinuation(i - 1, a.read(i - 1));
    }
    routes.erase(routes.begin() + i);
  }
};

class RouteModelTest : public RouteTest, public ::testing::WithParamInterface<unsigned> {
 protected:
  void beforeInitialising() override { appliance::removeFile(kRouteFile); }
};

// Each step runs the helper scripts in the appliance (about 50 ms a step, twice that under
// ASan, on this two-core host): four seeds of 500 steps, run in parallel by ctest.
constexpr int kSteps = 500;
const char* const kMasks[] = {"255.0.0.0", "255.255.0.0", "255.255.255.0", "255.255.255.252"};

TEST_P(RouteModelTest, ArraysAndCountFollowTheModel) {
  std::mt19937 random(GetParam());
  auto pick = [&](int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); };
  Model model;
  for (int step = 0; step < kSteps; ++step) {
    const int kind = pick(model.routes.empty() ? 1 : 4);
    std::string what;
    if (kind == 0) {
      const std::string address = "10." + std::to_string(pick(6)) + ".0.0";
      std::optional<std::string> mask;
      std::optional<unsigned short> metric;
      if (pick(3) != 0) mask = kMasks[pick(4)];
      if (pick(3) != 0) metric = static_cast<unsigned short>(pick(100));
      what = "create " + address + (mask ? " mask" : "") + (metric ? " metric" : "");
      const bool duplicate = model.indexOf(address) < static_cast<int>(model.routes.size());
      EXPECT_EQ(create(address, mask, metric).code, duplicate ? 4 : -1) << what;
      if (!duplicate) {
        const int n = static_cast<int>(model.routes.size());
        if (n > 0) model.arrays[0].continueElement(n - 1, model.arrays[0].read(n - 1));
        n > 0 ? model.arrays[0].append(n, address) : model.arrays[0].setFirst(address);
        model.routes.push_back(address);
        if (mask) model.arrays[1].set(n, *mask);
        if (metric) model.arrays[2].set(n, std::to_string(*metric));
      }
    } else {
      const int i = pick(static_cast<int>(model.routes.size()));
      const std::string address = model.routes[i];
      if (kind == 1) {
        what = "delete " + address;
        EXPECT_EQ(remove(route(address)).code, -1) << what;
        model.remove(i);
      } else if (kind == 2) {
        const char* mask = kMasks[pick(4)];
        what = "mask " + address;
        EXPECT_EQ(modify(route(address), {{"DestinationMask", client::text(mask)}}).code, -1);
        model.arrays[1].set(i, mask);
      } else {
        const unsigned short metric = static_cast<unsigned short>(pick(65536));
        what = "metric " + address;
        EXPECT_EQ(modify(route(address), {{"RouteMetric", client::u16(metric)}}).code, -1);
        model.arrays[2].set(i, std::to_string(metric));
      }
    }
    ASSERT_EQ(routeArrayLines(), model.render())
        << "seed " << GetParam() << " step " << step << ": " << what;
  }
  Lines ids = model.routes;
  std::sort(ids.begin(), ids.end());
  EXPECT_EQ(routeIds(), ids);
}

INSTANTIATE_TEST_SUITE_P(Seeds, RouteModelTest, ::testing::Values(1u, 7u, 2024u, 65537u));

}  // namespace
