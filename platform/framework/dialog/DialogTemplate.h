// Dialog templates: found in the chain of resource modules, and read as far as the framework needs.
#pragma once

#include <windows.h>

struct DialogTemplate {
    LPCDLGTEMPLATE bytes = nullptr; // null: there is none of that name
    HINSTANCE module = nullptr;     // the one that a look-up ends at; never null after FindDialogTemplate
};

// Name, or id by MAKEINTRESOURCE.
DialogTemplate FindDialogTemplate(LPCWSTR lpszName);

// Whether a template leaves the dialog's place to the framework, which centres it over the owner.
bool WantsCentre(LPCDLGTEMPLATE lpTemplate);
