// The start of a program that is built with the framework: the program defines its CWinApp object only.
#include "afx/WinApp.h"

int WINAPI wWinMain(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPWSTR lpCmdLine, int nCmdShow) {
    return AfxWinMain(hInstance, hPrevInstance, lpCmdLine, nCmdShow);
}
