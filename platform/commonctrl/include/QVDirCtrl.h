// QVDirCtrl.h: directory tree and directory list over the shell's name space: one header each.
#pragma once

#include "QVComboDTBox.h"
#include "QVDirListCtrl.h"
#include "QVDirTreeCtrl.h"
#include "QVFolderLister.h"
