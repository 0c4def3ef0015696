// The module objects of a list of per-class providers: constructed in the order listed,
// destroyed in reverse, and walked in the order listed by everything that visits every class.
#ifndef ZEPH_CLASSTABLE_H
#define ZEPH_CLASSTABLE_H

#include <type_traits>

#include "Zeph_ModuleClasses.h"

namespace ras {

// How the dispatcher reaches provider `p`: instance and method requests go to its instance
// provider template, association requests to `p` itself when it is an association provider.
template <class Provider>
ModuleClass moduleClassOf(Provider& p) {
  using Instances = typename Provider::InstanceProvider;
  Instances& instances = p;
  OpenWBEM::CppAssociatorProviderIFC* associations = nullptr;
  if constexpr (std::is_base_of_v<OpenWBEM::CppAssociatorProviderIFC, Provider>) {
    associations = &p;
  }
  return {Provider::Traits::kClass, &instances, &instances, associations};
}

template <class... Providers>
class ClassTable;

template <>
class ClassTable<> {
 public:
  template <class Visit>
  void forEach(Visit&) {}
};

// Members are constructed in declaration order, so `first_` precedes every later class.
template <class First, class... Rest>
class ClassTable<First, Rest...> {
 public:
  static constexpr int kSize = 1 + sizeof...(Rest);

  template <class Visit>
  void forEach(Visit& visit) {
    visit(first_);
    rest_.forEach(visit);
  }

 private:
  First first_;
  ClassTable<Rest...> rest_;
};

}  // namespace ras

#endif
