// What the classes that wrap the system's common controls share.
#pragma once

#include <string>

#include "framework/forms/ControlRows.h"
#include "framework/forms/ImageLists.h"
#include "framework/forms/Menus.h"
#include "framework/forms/WinControl.h"

// Makes the window classes known to the system (ICC_ flags).
void InitCommonControl(DWORD Classes);

// A pointer as a message parameter.
inline LPARAM Param(const void* Value)
{
    return reinterpret_cast<LPARAM>(Value);
}

// The text as the window structures want it; they do not change it.
inline LPSTR TextParam(const std::string& Text)
{
    return const_cast<char*>(Text.c_str());
}

inline HIMAGELIST ImagesHandle(TCustomImageList* Images)
{
    return Images ? Images->Handle() : nullptr;
}

// Holds back the notifications of changes that the program makes itself.
class TUpdateScope {
public:
    explicit TUpdateScope(int& Count) : FCount(Count) { ++FCount; }
    ~TUpdateScope() { --FCount; }
    TUpdateScope(const TUpdateScope&) = delete;
    TUpdateScope& operator=(const TUpdateScope&) = delete;

private:
    int& FCount;
};

// Rows of nearly every common control with a window.
ControlRows::TRows CommonControlRows(bool TabStop);
