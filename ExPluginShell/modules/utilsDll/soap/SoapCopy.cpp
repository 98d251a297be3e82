#include "SoapCopy.h"

#include "qtsoaparray.h"
#include "qtsoapsimpletype.h"
#include "qtsoapstruct.h"

#include <typeinfo>

namespace TOLVAN_NAMESPACE
{

QtSmartPtr<QtSoapType> copySoapValue(const QtSmartPtr<QtSoapType>& value)
{
    if (value.isNull()) {
        return value;
    }
    const QtSoapType& original = *value;
    const std::type_info& type = typeid(original);
    if (type == typeid(QtSoapSimpleType)) {
        return new QtSoapSimpleType(static_cast<const QtSoapSimpleType&>(*value));
    }
    if (type == typeid(QtSoapStruct)) {
        return new QtSoapStruct(static_cast<const QtSoapStruct&>(*value));
    }
    if (type == typeid(QtSoapArray)) {
        return new QtSoapArray(static_cast<const QtSoapArray&>(*value));
    }
    if (type == typeid(QtSoapType)) {
        return new QtSoapType(*value);
    }
    return value;
}

} // namespace TOLVAN_NAMESPACE
