// CQVVideoPlay: what can be learned of a media file without decoding it.
#pragma once

#include <afxwin.h>
#include "QVCommonClassApi.h"

namespace _qv_commonclass {

// What can be learned of a media file without decoding it.
//
//     CStringArray names;
//     if (CQVVideoPlay::GetPsdLayerInfo(path, names))
//         FillLayerList(names);
class QVCOMMONCLASS_API CQVVideoPlay {
  public:
    // The layer names of a Photoshop document (.psd or .psb; the content decides, not the extension), in
    // stored order: the bottom layer first. Adjustment layers count as layers; group headers and group ends
    // do not. Nonzero: names holds exactly the document's names, none for a document without layers. Zero:
    // path is null or empty, there is no such file, it cannot be read, is not a Photoshop document or is
    // damaged as far as the layer section reaches; names is unchanged. Paths over 260 characters are fine, as
    // are those that begin with "\\\\?\\". The file is opened for reading only and shared with everybody;
    // only the layer records are read, whatever the file's size. Any thread with 64 kB of stack left; nothing
    // is kept.
    static BOOL GetPsdLayerInfo(LPCWSTR path, CStringArray& names);
};

} // namespace _qv_commonclass
