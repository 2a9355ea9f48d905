// Everything that QVCommonClassU.dll offers.
#pragma once

// Everything QVCommonClassU.dll offers: profile texts, registry items, the resource-handle scope, the
// process-wide state table and the layer names of Photoshop documents.
//
//     using namespace _qv_commonclass;
//     CString folder = QV_GetProfileString(L"PathSet", L"ResPath", L"");
//     CStringArray names;
//     if (CQVVideoPlay::GetPsdLayerInfo(L"C:\\Pictures\\title.psd", names))
//         ShowLayers(names); // bottom layer first
#include "QVProfile.h"
#include "QVState.h"
#include "QVVideoPlay.h"
#include "Z5Regkey.h"
#include "Z5ResHandleManage.h"
