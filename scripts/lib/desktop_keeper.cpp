// Holds the desktop of a Wine prefix open. The process that owns the desktop is started by the first program
// with a window, keeps that program's output open and ends one second after the last such program: whoever
// reads the output of a test would wait that second each time. With this program running it starts once,
// silently.
//   desktop_keeper.exe FILE    makes FILE once the desktop is there, then stays until the prefix is shut down
#include <windows.h>

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR readyFile, int) {
    GetDesktopWindow();
    HANDLE file = CreateFileA(readyFile, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    CloseHandle(file);
    Sleep(INFINITE);
    return 0;
}
