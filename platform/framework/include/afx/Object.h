// CObject, the root of the class tree, and its run-time class information.
//
//     class CThing : public CObject {
//         DECLARE_DYNAMIC(CThing)
//     };
//     IMPLEMENT_DYNAMIC(CThing, CObject)
//     ...
//     if (pObject->IsKindOf(RUNTIME_CLASS(CThing))) ...
#pragma once

#include "Definitions.h"

class CObject;

// Describes one class: its name, size, base class and, for DYNCREATE classes, how to make an object. One
// static instance a class, owned by the module that implements the class.
struct AFXFRAME_API CRuntimeClass {
    LPCSTR m_lpszClassName;                      // ASCII, never null
    int m_nObjectSize;                           // bytes
    UINT m_wSchema;                              // 0xFFFF: the class takes no part in serialisation
    CObject*(PASCAL* m_pfnCreateObject)();       // null: objects cannot be made by class
    CRuntimeClass*(PASCAL* m_pfnGetBaseClass)(); // null: the root class
    CRuntimeClass* m_pNextClass;                 // link of the owning module's class list

    // A new object of the class on the heap (the caller deletes it), or null when the class cannot make one.
    CObject* CreateObject();
    // TRUE when this class is pBaseClass or derives from it; FALSE for null.
    BOOL IsDerivedFrom(const CRuntimeClass* pBaseClass) const;
    // Looks a creatable class up by its exact name: the application's classes first, then those of the
    // extension modules, the one loaded last first. Null when there is none.
    static CRuntimeClass* PASCAL FromName(LPCSTR lpszClassName);
    // FromName followed by CreateObject; null when either fails.
    static CObject* PASCAL CreateObject(LPCSTR lpszClassName);
};

// Enters a creatable class in the class list of the module that is being initialised, and takes it out again
// when the module's static objects are destroyed.
struct AFXFRAME_API AFX_CLASSINIT {
    explicit AFX_CLASSINIT(CRuntimeClass* pNewClass);
    ~AFX_CLASSINIT();
    AFX_CLASSINIT(const AFX_CLASSINIT&) = delete;
    AFX_CLASSINIT& operator=(const AFX_CLASSINIT&) = delete;

  private:
    CRuntimeClass* m_pClass;
};

#define RUNTIME_CLASS(class_name) (class_name::GetThisClass())

#define DECLARE_DYNAMIC(class_name)                                                                          \
  protected:                                                                                                 \
    static CRuntimeClass* PASCAL _GetBaseClass();                                                            \
                                                                                                             \
  public:                                                                                                    \
    static CRuntimeClass class##class_name;                                                                  \
    static CRuntimeClass* PASCAL GetThisClass();                                                             \
    CRuntimeClass* GetRuntimeClass() const override;

#define DECLARE_DYNCREATE(class_name)                                                                        \
    DECLARE_DYNAMIC(class_name)                                                                              \
    static CObject* PASCAL CreateObject();

#define AFX_IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, pfnNew)                                      \
    CRuntimeClass* PASCAL class_name::_GetBaseClass() {                                                      \
        return RUNTIME_CLASS(base_class_name);                                                               \
    }                                                                                                        \
    CRuntimeClass class_name::class##class_name = {                                                          \
        #class_name, static_cast<int>(sizeof(class class_name)), 0xFFFF, pfnNew, &class_name::_GetBaseClass, \
        nullptr};                                                                                            \
    CRuntimeClass* PASCAL class_name::GetThisClass() {                                                       \
        return &class_name::class##class_name;                                                               \
    }                                                                                                        \
    CRuntimeClass* class_name::GetRuntimeClass() const {                                                     \
        return &class_name::class##class_name;                                                               \
    }

#define IMPLEMENT_DYNAMIC(class_name, base_class_name)                                                       \
    AFX_IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, nullptr)

#define IMPLEMENT_DYNCREATE(class_name, base_class_name)                                                     \
    CObject* PASCAL class_name::CreateObject() {                                                             \
        return new class_name;                                                                               \
    }                                                                                                        \
    AFX_IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, &class_name::CreateObject)                       \
    static const AFX_CLASSINIT _init_##class_name(RUNTIME_CLASS(class_name));

// Root of all framework classes. Objects are not copied.
class AFXFRAME_API CObject {
  public:
    virtual CRuntimeClass* GetRuntimeClass() const;
    virtual ~CObject();

    // TRUE when the object's class is pClass or derives from it; FALSE for null.
    BOOL IsKindOf(const CRuntimeClass* pClass) const;
    // Hooks of diagnostic builds; they do nothing in the root class.
    virtual void AssertValid() const;

    static CRuntimeClass classCObject;
    static CRuntimeClass* PASCAL GetThisClass();

  protected:
    CObject();

  private:
    CObject(const CObject&) = delete;
    CObject& operator=(const CObject&) = delete;
};

// pObject when it is of class pClass (or derives from it), else null; null stays null.
AFXFRAME_API CObject* AfxDynamicDownCast(CRuntimeClass* pClass, CObject* pObject);

#define DYNAMIC_DOWNCAST(class_name, object)                                                                 \
    (static_cast<class_name*>(AfxDynamicDownCast(RUNTIME_CLASS(class_name), object)))
#define STATIC_DOWNCAST(class_name, object) (static_cast<class_name*>(object))
