// The class-independent parts of the provider template.
#include "Zeph_ProviderCore.h"

#include "Zeph_CimValues.h"

namespace ras {

void raiseSetterStatus(const ProviderSite& site, int status) {
  if (status == kStatusInvalidValue) {
    throwProviderError(site.at(site.lines.invalidValue), OpenWBEM::CIMException::INVALID_PARAMETER,
                       invalidValueMessage(site.className));
  }
  if (status != kStatusOk) {
    throwProviderError(site.at(site.lines.setterFailed), OpenWBEM::CIMException::FAILED,
                       statusMessage(status));
  }
}

void checkTextLimits(const ProviderSite& site, const char* property, const Limits& limits,
                     const std::string& value) {
  if (limits.maximumLength && utf8Length(value) > *limits.maximumLength) {
    throwProviderError(site.at(site.lines.tooLong), OpenWBEM::CIMException::INVALID_PARAMETER,
                       tooLongMessage(site.className, property, *limits.maximumLength));
  }
}

void checkNumberLimits(const ProviderSite& site, const char* property, const Limits& limits,
                       unsigned value) {
  const auto code = OpenWBEM::CIMException::INVALID_PARAMETER;
  if (limits.maximum && value > *limits.maximum) {
    throwProviderError(site.at(site.lines.aboveMaximum), code,
                       aboveMaximumMessage(site.className, property, *limits.maximum));
  }
  if (limits.minimum && value < *limits.minimum) {
    throwProviderError(site.at(site.lines.belowMinimum), code,
                       belowMinimumMessage(site.className, property, *limits.minimum));
  }
}

void checkChangeStarted(const ProviderSite& site, int started) {
  if (started != kStatusOk) {
    throwProviderError(site.at(site.lines.changeNotStarted), OpenWBEM::CIMException::FAILED,
                       changeNotStartedMessage(started));
  }
}

void checkChangeEnded(const ProviderSite& site, int ended) {
  if (ended == kStatusInvalidValue || ended == kStatusInvalidValues) {
    throwProviderError(site.at(site.lines.valuesInvalid), OpenWBEM::CIMException::INVALID_PARAMETER,
                       valuesInvalidMessage(site.className));
  }
  if (ended != kStatusOk) {
    throwProviderError(site.at(site.lines.changeNotCommitted), OpenWBEM::CIMException::FAILED,
                       statusMessage(ended));
  }
}

bool hasCimType(CimType type, const OpenWBEM::CIMValue& value) {
  if (value.isArray()) return false;
  switch (type) {
    case CimType::String:
      return value.getType() == OpenWBEM::CIMDataType::STRING;
    case CimType::UInt16:
      return value.getType() == OpenWBEM::CIMDataType::UINT16;
    case CimType::UInt8:
      return value.getType() == OpenWBEM::CIMDataType::UINT8;
    case CimType::Boolean:
      return value.getType() == OpenWBEM::CIMDataType::BOOLEAN;
    case CimType::DateTime:
      return value.getType() == OpenWBEM::CIMDataType::DATETIME;
    case CimType::Reference:
      return value.getType() == OpenWBEM::CIMDataType::REFERENCE;
  }
  return false;
}

std::string lookupKeyText(const ProviderSite& site, const LookupLines& where, CimType type,
                          const OpenWBEM::CIMProperty& property) {
  if (!property) throwWithoutMessage(site.at(where.missing), OpenWBEM::CIMException::NOT_FOUND);
  const OpenWBEM::CIMValue value = property.getValue();
  std::optional<std::string> text;
  if (value) {
    text = type == CimType::Reference ? referencedInstanceID(value)
                                      : std::optional<std::string>(toStdString(value.toString()));
  }
  if (!text) throwWithoutMessage(site.at(where.null), OpenWBEM::CIMException::NOT_FOUND);
  return *text;
}

namespace {

// The writable row named `name` and its index, if there is one.
bool writableRow(const ClassOps& ops, const OpenWBEM::String& name, RowInfo& row,
                 std::size_t& index) {
  const std::size_t count = ops.rowCount();
  for (index = 0; index < count; ++index) {
    row = ops.rowAt(index);
    if (row.role == Role::Writable && name.equals(row.name)) return true;
  }
  return false;
}

}  // namespace

void buildInstance(const ClassOps& ops, const OpenWBEM::String& ns, const ManagedObject& object,
                   OpenWBEM::CIMInstance& instance) {
  Qualifiers qualifiers;
  OpenWBEM::CIMPropertyArray keys;
  const std::size_t count = ops.rowCount();
  for (std::size_t i = 0; i < count; ++i) {
    qualifiers.clear();
    OpenWBEM::CIMValue value(OpenWBEM::CIMNULL);
    if (ops.read(i, object, ns, qualifiers, value) != kStatusOk) continue;
    const RowInfo row = ops.rowAt(i);
    OpenWBEM::CIMProperty property(row.name, value);
    if (row.role == Role::Key) keys.push_back(property);
    property.setQualifiers(qualifiers);
    instance.setProperty(property);
  }
  instance.setKeys(keys);
}

void buildObjectPath(const ClassOps& ops, const ManagedObject& object,
                     OpenWBEM::CIMObjectPath& path) {
  Qualifiers scratch;
  const std::size_t count = ops.rowCount();
  for (std::size_t i = 0; i < count; ++i) {
    const RowInfo row = ops.rowAt(i);
    if (row.role != Role::Key) continue;
    OpenWBEM::CIMValue value(OpenWBEM::CIMNULL);
    if (ops.read(i, object, path.getNameSpace(), scratch, value) != kStatusOk) {
      throwWithoutMessage(ops.site.at(ops.site.lines.keyNotReadable),
                          OpenWBEM::CIMException::NOT_FOUND);
    }
    path.setKeyValue(row.name, value);
  }
}

std::string lookupKey(const ClassOps& ops, const LookupLines& where, KeySource keyOf,
                      const void* source) {
  std::string key;
  const std::size_t count = ops.rowCount();
  for (std::size_t i = 0; i < count; ++i) {
    const RowInfo row = ops.rowAt(i);
    if (row.role != Role::Key) continue;
    key += lookupKeyText(ops.site, where, row.type, keyOf(source, row.name));
  }
  return key;
}

std::vector<std::string> creationKeys(const ClassOps& ops, const OpenWBEM::CIMInstance& instance) {
  std::vector<std::string> keys;
  const std::size_t count = ops.rowCount();
  for (std::size_t i = 0; i < count; ++i) {
    const RowInfo row = ops.rowAt(i);
    if (row.role != Role::Key) continue;
    const OpenWBEM::CIMValue value = instance.getPropertyValue(row.name);
    std::optional<std::string> text;
    if (value) {
      text = row.type == CimType::Reference
                 ? referencedInstanceID(value)
                 : std::optional<std::string>(toStdString(value.toString()));
    }
    keys.push_back(text.value_or(""));
  }
  return keys;
}

namespace {

// Gives each non-null property of `instance` that the class writes to `apply(index, value)`,
// in the instance's order, and raises the status it returns; a value of another CIM type is
// an invalid value.
template <class Apply>
void applyWritable(const ClassOps& ops, const OpenWBEM::CIMInstance& instance, Apply apply) {
  const OpenWBEM::CIMPropertyArray properties = instance.getProperties();
  for (const OpenWBEM::CIMProperty& property : properties) {
    std::size_t index = 0;
    RowInfo row{};
    const bool writable = writableRow(ops, property.getName(), row, index);
    const OpenWBEM::CIMValue value = property.getValue();
    if (!writable || !value) continue;
    raiseSetterStatus(ops.site,
                      hasCimType(row.type, value) ? apply(index, value) : kStatusInvalidValue);
  }
}

}  // namespace

void runChange(const ClassOps& ops, ManagedObject& object, const OpenWBEM::CIMInstance& instance) {
  checkChangeStarted(ops.site, object.startChange());
  applyWritable(ops, instance, [&](std::size_t index, const OpenWBEM::CIMValue& value) {
    return ops.write(index, object, value);
  });
  checkChangeEnded(ops.site, object.endChange());
}

void refuseUnacceptable(const ClassOps& ops, const OpenWBEM::CIMInstance& instance) {
  applyWritable(ops, instance, [&](std::size_t index, const OpenWBEM::CIMValue& value) {
    return ops.accept(index, value);
  });
}

}  // namespace ras
