// Message builder that replaces %1..%9 in a pattern with the streamed arguments.
#ifndef OW_FORMAT_HPP_INCLUDE_GUARD_
#define OW_FORMAT_HPP_INCLUDE_GUARD_
#include <iosfwd>
#include <sstream>

#include "OW_String.hpp"
#include "OW_config.h"

namespace OW_NAMESPACE {

class Format {
 public:
  operator String() const;
  String toString() const;
  const char* c_str() const;

  template <typename A>
  Format(const char* ca, const A& a);
  Format(const char* ca, const String& a);
  Format(const char* ca, const String& a, const String& b);
  Format(const char* ca, const String& a, const String& b, const String& c);
  template <typename A, typename B>
  Format(const char* ca, const A& a, const B& b);
  template <typename A, typename B, typename C>
  Format(const char* ca, const A& a, const B& b, const C& c);
  template <typename A, typename B, typename C, typename D>
  Format(const char* ca, const A& a, const B& b, const C& c, const D& d);
  template <typename A, typename B, typename C, typename D, typename E>
  Format(const char* ca, const A& a, const B& b, const C& c, const D& d, const E& e);
  template <typename A, typename B, typename C, typename D, typename E, typename F>
  Format(const char* ca, const A& a, const B& b, const C& c, const D& d, const E& e, const F& f);
  template <typename A, typename B, typename C, typename D, typename E, typename F, typename G>
  Format(const char* ca, const A& a, const B& b, const C& c, const D& d, const E& e, const F& f,
         const G& g);
  template <typename A, typename B, typename C, typename D, typename E, typename F, typename G,
            typename H>
  Format(const char* ca, const A& a, const B& b, const C& c, const D& d, const E& e, const F& f,
         const G& g, const H& hh);
  template <typename A, typename B, typename C, typename D, typename E, typename F, typename G,
            typename H, typename I>
  Format(const char* ca, const A& a, const B& b, const C& c, const D& d, const E& e, const F& f,
         const G& g, const H& hh, const I& i);

 private:
  // Each argument is streamed into its own text; the pattern is expanded once at the end.
  template <typename T>
  void put(const T& t) {
    std::ostringstream os;
    os << t;
    m_args[m_count++] = String(os.str().c_str());
  }
  void expand(const char* ca);

  String m_args[9];
  int m_count = 0;
  String m_result;
};

template <typename A>
Format::Format(const char* ca, const A& a) {
  put(a);
  expand(ca);
}
template <typename A, typename B>
Format::Format(const char* ca, const A& a, const B& b) {
  put(a), put(b);
  expand(ca);
}
template <typename A, typename B, typename C>
Format::Format(const char* ca, const A& a, const B& b, const C& c) {
  put(a), put(b), put(c);
  expand(ca);
}
template <typename A, typename B, typename C, typename D>
Format::Format(const char* ca, const A& a, const B& b, const C& c, const D& d) {
  put(a), put(b), put(c), put(d);
  expand(ca);
}
template <typename A, typename B, typename C, typename D, typename E>
Format::Format(const char* ca, const A& a, const B& b, const C& c, const D& d, const E& e) {
  put(a), put(b), put(c), put(d), put(e);
  expand(ca);
}
template <typename A, typename B, typename C, typename D, typename E, typename F>
Format::Format(const char* ca, const A& a, const B& b, const C& c, const D& d, const E& e,
               const F& f) {
  put(a), put(b), put(c), put(d), put(e), put(f);
  expand(ca);
}
template <typename A, typename B, typename C, typename D, typename E, typename F, typename G>
Format::Format(const char* ca, const A& a, const B& b, const C& c, const D& d, const E& e,
               const F& f, const G& g) {
  put(a), put(b), put(c), put(d), put(e), put(f), put(g);
  expand(ca);
}
template <typename A, typename B, typename C, typename D, typename E, typename F, typename G,
          typename H>
Format::Format(const char* ca, const A& a, const B& b, const C& c, const D& d, const E& e,
               const F& f, const G& g, const H& hh) {
  put(a), put(b), put(c), put(d), put(e), put(f), put(g), put(hh);
  expand(ca);
}
template <typename A, typename B, typename C, typename D, typename E, typename F, typename G,
          typename H, typename I>
Format::Format(const char* ca, const A& a, const B& b, const C& c, const D& d, const E& e,
               const F& f, const G& g, const H& hh, const I& i) {
  put(a), put(b), put(c), put(d), put(e), put(f), put(g), put(hh), put(i);
  expand(ca);
}

std::ostream& operator<<(std::ostream& os, const Format& f);

}  // namespace OW_NAMESPACE

#endif
