#include "QVVideoPlay.h"
#include "FileByteSource.h"
#include "SystemLegacyDecoder.h"
#include "psd/LayerNames.h"
#include <utility>

namespace _qv_commonclass {

namespace {

void store(const psd::NameList& layers, CStringArray& names) {
    names.SetSize(static_cast<INT_PTR>(layers.size()));
    for (std::size_t i = 0; i < layers.size(); ++i) {
        const std::u16string_view name = layers[i];
        names.ElementAt(static_cast<INT_PTR>(i)) =
            CString(reinterpret_cast<LPCWSTR>(name.data()), static_cast<int>(name.size()));
    }
}

} // namespace

BOOL CQVVideoPlay::GetPsdLayerInfo(LPCWSTR path, CStringArray& names) {
    if (path == nullptr || *path == L'\0')
        return FALSE;
    bool isStoring = false;
    try {
        FileByteSource file(path);
        psd::NameList layers;
        if (!file.isOpen() ||
            psd::readLayerNames(file, SystemLegacyDecoder(), layers) != psd::ReadResult::Done)
            return FALSE;
        isStoring = true;
        store(layers, names);
        return TRUE;
    } catch (...) { // out of memory: no exception leaves this library, and no half list
        if (isStoring)
            names.RemoveAll();
        return FALSE;
    }
}

} // namespace _qv_commonclass
