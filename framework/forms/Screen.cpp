#include "framework/forms/Screen.h"

#include <algorithm>

#include "framework/forms/Application.h"
#include "framework/forms/DataModules.h"
#include "framework/rtl/SysUtils.h"

TScreen* Screen = nullptr;

namespace {

// The system's cursors, by -TCursor.
LPCSTR SystemCursor(int Index)
{
    switch (Index) {
    case crArrow:
    case crDefault:
    case crDrag:
    case crMultiDrag:
        return IDC_ARROW;
    case crCross:
        return IDC_CROSS;
    case crIBeam:
        return IDC_IBEAM;
    case crSizeNESW:
        return IDC_SIZENESW;
    case crSizeNS:
    case crVSplit:
        return IDC_SIZENS;
    case crSizeNWSE:
        return IDC_SIZENWSE;
    case crSizeWE:
    case crHSplit:
        return IDC_SIZEWE;
    case crUpArrow:
        return IDC_UPARROW;
    case crHourGlass:
    case crSQLWait:
        return IDC_WAIT;
    case crNo:
    case crNoDrop:
        return IDC_NO;
    case crAppStart:
        return IDC_APPSTARTING;
    case crHelp:
        return IDC_HELP;
    case crHandPoint:
        return IDC_HAND;
    case crSizeAll:
        return IDC_SIZEALL;
    default:
        return IDC_ARROW;
    }
}

int CALLBACK AddFontName(const LOGFONTA* Font, const TEXTMETRICA*, DWORD, LPARAM Param)
{
    auto& List = *reinterpret_cast<TStringList*>(Param);
    // Names that begin with "@" are the upright variants of the same fonts.
    const std::string Name = Font->lfFaceName;
    int Index = 0;
    if (!Name.empty() && Name[0] != '@' && !List.Find(Name, Index))
        List.Add(Name);
    return 1;
}

struct TDisabling {
    HWND Except;
    std::vector<HWND> Windows;
};

BOOL CALLBACK DisableWindow(HWND Window, LPARAM Param)
{
    auto& Disabling = *reinterpret_cast<TDisabling*>(Param);
    if (Window != Disabling.Except && IsWindowVisible(Window) && IsWindowEnabled(Window)) {
        EnableWindow(Window, FALSE);
        Disabling.Windows.push_back(Window);
    }
    return TRUE;
}

template<class T>
T* At(const std::vector<T*>& List, int Index)
{
    if (Index < 0 || Index >= static_cast<int>(List.size()))
        throw EListError(Format(SListIndexError, {Index}));
    return List[static_cast<size_t>(Index)];
}

} // namespace

const TMetaClass& TScreen::MetaClass()
{
    static const TMetaClass Class("TScreen", &TComponent::MetaClass(), nullptr);
    return Class;
}

TScreen::TScreen(TComponent* Owner) : TComponent(Owner)
{
    GetMetricSettings();
}

TScreen::~TScreen() = default;

void TScreen::GetMetricSettings()
{
    NONCLIENTMETRICSA Metrics{};
    Metrics.cbSize = sizeof Metrics;
    const auto Take = [](TFont& Font, const LOGFONTA& Source) {
        if (const HFONT Handle = CreateFontIndirectA(&Source)) {
            Font.SetHandle(Handle);
            DeleteObject(Handle);
        }
    };
    if (SystemParametersInfoA(SPI_GETNONCLIENTMETRICS, sizeof Metrics, &Metrics, 0)) {
        Take(FHintFont, Metrics.lfStatusFont);
        Take(FMenuFont, Metrics.lfMenuFont);
    }
    FHintFont.SetColor(clInfoText);
    FMenuFont.SetColor(clMenuText);
    LOGFONTA Icon{};
    if (SystemParametersInfoA(SPI_GETICONTITLELOGFONT, sizeof Icon, &Icon, 0))
        Take(FIconFont, Icon);
}

TForm* TScreen::Forms(int Index) const
{
    std::vector<TForm*> List;
    for (TCustomForm* const Form : FAllForms)
        if (auto* const Plain = dynamic_cast<TForm*>(Form))
            List.push_back(Plain);
    return At(List, Index);
}

int TScreen::FormCount() const
{
    return static_cast<int>(std::count_if(FAllForms.begin(), FAllForms.end(),
                                          [](TCustomForm* Form) { return dynamic_cast<TForm*>(Form); }));
}

TCustomForm* TScreen::CustomForms(int Index) const
{
    return At(FCustomForms, Index);
}

TDataModule* TScreen::DataModules(int Index) const
{
    return At(FDataModules, Index);
}

TForm* TScreen::ActiveForm() const
{
    return dynamic_cast<TForm*>(FActiveCustomForm);
}

void TScreen::AddForm(TCustomForm* Form)
{
    FAllForms.push_back(Form);
    FCustomForms.push_back(Form);
}

void TScreen::RemoveForm(TCustomForm* Form)
{
    std::erase(FAllForms, Form);
    std::erase(FCustomForms, Form);
    if (FFocusedForm == Form)
        FFocusedForm = nullptr;
    if (FActiveCustomForm == Form) {
        FActiveCustomForm = nullptr;
        FActiveControl = nullptr;
    }
}

void TScreen::AddDataModule(TDataModule* Module)
{
    FDataModules.push_back(Module);
}

void TScreen::RemoveDataModule(TDataModule* Module)
{
    std::erase(FDataModules, Module);
}

void TScreen::SetActive(TCustomForm* Form, TWinControl* Control)
{
    const bool FormChanges = FActiveCustomForm != Form;
    const bool ControlChanges = FActiveControl != Control;
    FActiveCustomForm = Form;
    FActiveControl = Control;
    if (Form && std::erase(FCustomForms, Form) > 0)
        FCustomForms.insert(FCustomForms.begin(), Form);
    if (FormChanges && OnActiveFormChange)
        OnActiveFormChange(this);
    if (ControlChanges && OnActiveControlChange)
        OnActiveControlChange(this);
}

// Shown at once: no mouse message comes while the program is busy.
void TScreen::SetCursor(TCursor Value)
{
    if (FCursor == Value)
        return;
    FCursor = Value;
    if (Value != crDefault) {
        ::SetCursor(Cursors(Value));
        return;
    }
    TPoint Pos{};
    GetCursorPos(&Pos);
    HWND Window = WindowFromPoint(Pos);
    DWORD Process = 0;
    GetWindowThreadProcessId(Window, &Process);
    if (Window && Process == GetCurrentProcessId()) {
        const LRESULT Code = SendMessageA(Window, WM_NCHITTEST, 0, MAKELPARAM(Pos.x, Pos.y));
        SendMessageA(Window, WM_SETCURSOR, reinterpret_cast<WPARAM>(Window), MAKELPARAM(Code, WM_MOUSEMOVE));
    } else {
        ::SetCursor(Cursors(crDefault));
    }
}

HCURSOR TScreen::Cursors(TCursor Index) const
{
    if (Index == crNone)
        return nullptr;
    if (const auto Found = FOwnCursors.find(Index); Found != FOwnCursors.end())
        return Found->second;
    return LoadCursorA(nullptr, SystemCursor(Index));
}

void TScreen::SetCursors(TCursor Index, HCURSOR Handle)
{
    FOwnCursors[Index] = Handle;
}

int TScreen::Width() const
{
    return GetSystemMetrics(SM_CXSCREEN);
}

int TScreen::Height() const
{
    return GetSystemMetrics(SM_CYSCREEN);
}

TRect TScreen::WorkAreaRect() const
{
    TRect Result = Rect(0, 0, Width(), Height());
    SystemParametersInfoA(SPI_GETWORKAREA, 0, &Result, 0);
    return Result;
}

TStrings* TScreen::Fonts()
{
    if (!FFonts) {
        FFonts = std::make_unique<TStringList>();
        FFonts->SetSorted(true);
        LOGFONTA Any{};
        Any.lfCharSet = DEFAULT_CHARSET;
        const HDC Dc = GetDC(nullptr);
        EnumFontFamiliesExA(Dc, &Any, &AddFontName, reinterpret_cast<LPARAM>(FFonts.get()), 0);
        ReleaseDC(nullptr, Dc);
    }
    return FFonts.get();
}

std::vector<HWND> TScreen::DisableTaskWindows(HWND Except)
{
    TDisabling Disabling{Except, {}};
    EnumThreadWindows(GetCurrentThreadId(), &DisableWindow, reinterpret_cast<LPARAM>(&Disabling));
    return Disabling.Windows;
}

void TScreen::EnableTaskWindows(const std::vector<HWND>& Windows)
{
    for (const HWND Window : Windows)
        if (IsWindow(Window))
            EnableWindow(Window, TRUE);
}

TModalState::TModalState() : FActive(GetActiveWindow()), FDisabled(TScreen::DisableTaskWindows(nullptr)) {}

TModalState::~TModalState()
{
    TScreen::EnableTaskWindows(FDisabled);
    if (FActive && IsWindow(FActive))
        SetActiveWindow(FActive);
}
