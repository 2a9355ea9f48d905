// CZ5ResHandleManage: puts a resource handle in force, and the former one back.
#include "Z5ResHandleManage.h"

namespace _qv_commonclass {

CZ5ResHandleManage::CZ5ResHandleManage(HINSTANCE hInstance)
    : m_hFormer(nullptr), m_bChanged(hInstance != nullptr) {
    if (!m_bChanged)
        return;
    m_hFormer = AfxGetResourceHandle();
    AfxSetResourceHandle(hInstance);
}

CZ5ResHandleManage::~CZ5ResHandleManage() {
    if (m_bChanged)
        AfxSetResourceHandle(m_hFormer);
}

} // namespace _qv_commonclass
