// CObject: the root class.
#include "afx/Object.h"

CRuntimeClass CObject::classCObject = {"CObject", static_cast<int>(sizeof(CObject)), 0xFFFF, nullptr, nullptr,
                                       nullptr};

CObject::CObject() = default;

CObject::~CObject() = default;

CRuntimeClass* PASCAL CObject::GetThisClass() {
    return &classCObject;
}

CRuntimeClass* CObject::GetRuntimeClass() const {
    return &classCObject;
}

BOOL CObject::IsKindOf(const CRuntimeClass* pClass) const {
    return GetRuntimeClass()->IsDerivedFrom(pClass);
}

void CObject::AssertValid() const {
}

CObject* AfxDynamicDownCast(CRuntimeClass* pClass, CObject* pObject) {
    return pObject && pObject->IsKindOf(pClass) ? pObject : nullptr;
}
