// The window classes that were registered through the framework.
#pragma once

#include <windows.h>

// Takes the classes of a module (null: all) back from the system.
void AfxUnregisterClasses(HINSTANCE hInstance);
