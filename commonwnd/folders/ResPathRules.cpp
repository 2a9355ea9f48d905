#include "ResPathRules.h"

#include "module/DictText.h"

namespace _qv_commonwnd {

PathVerdict JudgePaths(PathState resource, PathState media) {
    PathVerdict verdict;
    if (resource == PathState::Missing) {
        verdict.restore = PathField::Resource;
        verdict.message = QV_GetCommonDictString(L"资源路径无效!");
    }
    if (media == PathState::Missing) {
        verdict.restore = PathField::Media;
        verdict.message += L"\n" + QV_GetCommonDictString(L"文件路径无效!");
    }
    return verdict;
}

CString WithoutTrailingBackslashes(CString path) {
    return path.TrimRight(L'\\');
}

} // namespace _qv_commonwnd
