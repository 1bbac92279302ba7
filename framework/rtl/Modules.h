// Modules whose resources can be had in other languages.
//
// A resource-language module is a library beside the program that holds the same
// string table in another language (cmake/ResStrings.cmake makes one). Its name is
// that of the program with the language's abbreviation as extension:
//     booking.exe -> booking.DEU, or else booking.DE
// While it is loaded, the texts come from there.
#pragma once

#include <atomic>
#include <string>

#include "platform/winapi.h"

// One module. The owner keeps it in place while it is registered.
struct TLibModule {
    TLibModule* Next = nullptr;
    HINSTANCE Instance = nullptr;
    // Null: its own resources. A language module is loaded as a data file, of which
    // GetModuleFileNameA does not tell the name; that of Instance it tells.
    std::atomic<HINSTANCE> ResInstance{nullptr};
};

// The registered modules, the newest first. The last one is the program, which
// needs no registering.
extern TLibModule* LibModuleList;

// Any thread may load texts meanwhile; the calls themselves, and walking the list,
// are for the main thread. A module that was not registered is ignored.
void RegisterModule(TLibModule& Module);
void UnregisterModule(TLibModule& Module);

// The module that holds the resources of Instance: its resource-language module
// when one is loaded, otherwise Instance. Any thread.
HINSTANCE FindResourceHInstance(HINSTANCE Instance);

// LoadStringA from the module that holds the resources of Instance, and from
// Instance itself when the language module lacks the text. Any thread.
int LoadModuleString(HINSTANCE Instance, UINT Identifier, char* Buffer, int Capacity);

// Loads the resource-language module of a program or library by its file name;
// null when there is none for the locale's language. Free it with FreeLibrary.
HINSTANCE LoadResourceModule(const std::string& ModuleFile, LCID Locale);

// Takes the program's texts from its resource-language module for a locale; false,
// with the present one kept, when there is none. Main thread, while no other thread
// loads texts: the old module's memory goes away.
bool LoadResourceLanguage(LCID Locale = GetUserDefaultLCID());

// Takes them from the program again. The same holds.
void UnloadResourceLanguage();
