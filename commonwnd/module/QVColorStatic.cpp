#include "QVColorStatic.h"

namespace _qv_commonwnd {

IMPLEMENT_DYNAMIC(CQVColorStatic, CStatic)

BEGIN_MESSAGE_MAP(CQVColorStatic, CStatic)
END_MESSAGE_MAP()

CQVColorStatic::CQVColorStatic() = default;

CQVColorStatic::~CQVColorStatic() = default;

} // namespace _qv_commonwnd
