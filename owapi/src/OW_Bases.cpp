// Out-of-line destructors and operators of the abstract bases.
#include <ostream>

#include "OW_CIMBase.hpp"
#include "OW_CIMElement.hpp"
#include "OW_CIMName.hpp"
#include "OW_COWIntrusiveCountableBase.hpp"
#include "OW_IntrusiveCountableBase.hpp"
#include "OW_RepositoryIFC.hpp"
#include "OW_SharedLibrary.hpp"
#include "OW_String.hpp"

namespace OW_NAMESPACE {

IntrusiveCountableBase::~IntrusiveCountableBase() {}
COWIntrusiveCountableBase::~COWIntrusiveCountableBase() {}
CIMBase::~CIMBase() {}
CIMElement::~CIMElement() {}
RepositoryIFC::~RepositoryIFC() {}
SharedLibrary::~SharedLibrary() {}

std::ostream& operator<<(std::ostream& ostr, const CIMBase& cb) {
  return ostr << cb.toString();
}

bool CIMElement::operator<(const CIMElement& arg) const {
  return CIMName(getName()) < CIMName(arg.getName());
}

bool CIMElement::operator==(const CIMElement& arg) {
  return getName().equalsIgnoreCase(arg.getName());
}

}  // namespace OW_NAMESPACE
