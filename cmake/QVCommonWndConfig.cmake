# find_package(QVCommonWnd): the library for a host that is built with the same toolchain.
#
#   find_package(QVCommonWnd 1.0 REQUIRED)
#   add_executable(MyEditor WIN32 Main.cpp)
#   target_link_libraries(MyEditor PRIVATE QVCommonWnd::QVCommonWnd QVCommonWnd::Main)
#
# QVCommonWnd::QVCommonWnd  headers and import libraries of the product and of what its classes derive from
# QVCommonWnd::Main         wWinMain of the framework, for a program that only defines its CWinApp object
# QVCommonWnd_BIN_DIR       where the DLLs are; a program beside them finds them, the skins and the dictionaries
get_filename_component(_qv_root "${CMAKE_CURRENT_LIST_DIR}/../../.." ABSOLUTE)
set(QVCommonWnd_BIN_DIR "${_qv_root}/bin")

if(NOT TARGET QVCommonWnd::QVCommonWnd)
  set(_qv_libraries "")
  foreach(_qv_name AfxFrameU QVCommonClassU QVCommonCtrlU LWSupportAPIU QVExtraCtrlU)
    add_library(QVCommonWnd::${_qv_name} SHARED IMPORTED)
    set_target_properties(QVCommonWnd::${_qv_name} PROPERTIES
      IMPORTED_LOCATION "${_qv_root}/bin/${_qv_name}.dll"
      IMPORTED_IMPLIB "${_qv_root}/lib/lib${_qv_name}.dll.a")
    list(APPEND _qv_libraries QVCommonWnd::${_qv_name})
  endforeach()
  add_library(QVCommonWnd::QVCommonWnd SHARED IMPORTED)
  set_target_properties(QVCommonWnd::QVCommonWnd PROPERTIES
    IMPORTED_LOCATION "${_qv_root}/bin/QVCommonWndU.dll"
    IMPORTED_IMPLIB "${_qv_root}/lib/libQVCommonWndU.dll.a"
    INTERFACE_INCLUDE_DIRECTORIES "${_qv_root}/include"
    INTERFACE_COMPILE_FEATURES cxx_std_20
    INTERFACE_COMPILE_DEFINITIONS "UNICODE;_UNICODE;NOMINMAX;WINVER=0x0A00;_WIN32_WINNT=0x0A00"
    INTERFACE_LINK_LIBRARIES "${_qv_libraries};user32;gdi32;comctl32;comdlg32;shell32;ole32")
  add_library(QVCommonWnd::Main STATIC IMPORTED)
  set_target_properties(QVCommonWnd::Main PROPERTIES
    IMPORTED_LOCATION "${_qv_root}/lib/libAfxFrameMain.a"
    INTERFACE_LINK_OPTIONS "-municode;-Wl,--undefined=wWinMain"
    INTERFACE_LINK_LIBRARIES QVCommonWnd::QVCommonWnd)
endif()
set(QVCommonWnd_FOUND TRUE)
