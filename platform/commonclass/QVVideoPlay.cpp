#include "QVVideoPlay.h"
#include "FileByteSource.h"
#include "LayerTexts.h"
#include "SystemLegacyDecoder.h"
#include "psd/LayerNames.h"

namespace _qv_commonclass {

BOOL CQVVideoPlay::GetPsdLayerInfo(LPCWSTR path, CStringArray& names) {
    if (path == nullptr || *path == L'\0')
        return FALSE;
    try {
        FileByteSource file(path);
        LayerTexts layers;
        if (!file.isOpen() ||
            psd::readLayerNames(file, SystemLegacyDecoder(), layers) != psd::ReadResult::Done)
            return FALSE;
        layers.moveTo(names);
        return TRUE;
    } catch (...) { // out of memory: no exception leaves this library
        return FALSE;
    }
}

} // namespace _qv_commonclass
