// The screen: forms, cursors and fonts of the program.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "framework/forms/Form.h"
#include "framework/rtl/Strings.h"

class TDataModule;

class TScreen : public TComponent {
    OBX_CLASS(TComponent)
public:
    explicit TScreen(TComponent* Owner);
    ~TScreen() override;

    // The forms of TForm's descent in the order of their creation.
    int FormCount() const;
    TForm* Forms(int Index) const;
    int CustomFormCount() const { return static_cast<int>(FCustomForms.size()); }
    // All forms; the one that was active last comes first.
    TCustomForm* CustomForms(int Index) const;
    int DataModuleCount() const { return static_cast<int>(FDataModules.size()); }
    TDataModule* DataModules(int Index) const;

    // Null while no window of the program is active.
    TCustomForm* ActiveCustomForm() const { return FActiveCustomForm; }
    TForm* ActiveForm() const;
    TWinControl* ActiveControl() const { return FActiveControl; }
    TCustomForm* FocusedForm() const { return FFocusedForm; }

    // Shown instead of every control's own cursor; crDefault for none.
    TCursor Cursor() const { return FCursor; }
    void SetCursor(TCursor Value);
    HCURSOR Cursors(TCursor Index) const;
    // A cursor of the program's own, Index above 0. Not owned.
    void SetCursors(TCursor Index, HCURSOR Handle);

    // Pixels.
    int Width() const;
    int Height() const;
    TRect WorkAreaRect() const;
    int PixelsPerInch() const { return ScreenPixelsPerInch(); }
    // Names of the system's fonts, in order.
    TStrings* Fonts();
    TFont* HintFont() { return &FHintFont; }
    TFont* MenuFont() { return &FMenuFont; }
    TFont* IconFont() { return &FIconFont; }

    // Disables all windows of the program except one; the result names those that
    // were disabled here and must go to EnableTaskWindows.
    static std::vector<HWND> DisableTaskWindows(HWND Except);
    static void EnableTaskWindows(const std::vector<HWND>& Windows);

    TNotifyEvent OnActiveControlChange;
    TNotifyEvent OnActiveFormChange;

private:
    friend class TCustomForm;
    friend class TDataModule;
    void AddForm(TCustomForm* Form);
    void RemoveForm(TCustomForm* Form);
    void AddDataModule(TDataModule* Module);
    void RemoveDataModule(TDataModule* Module);
    void SetActive(TCustomForm* Form, TWinControl* Control);
    void GetMetricSettings();

    std::vector<TCustomForm*> FAllForms;    // in the order of creation
    std::vector<TCustomForm*> FCustomForms; // last active first
    std::vector<TDataModule*> FDataModules;
    TCustomForm* FActiveCustomForm = nullptr;
    TCustomForm* FFocusedForm = nullptr;
    TWinControl* FActiveControl = nullptr;
    TCursor FCursor = crDefault;
    std::map<int, HCURSOR> FOwnCursors;
    std::unique_ptr<TStringList> FFonts;
    TFont FHintFont;
    TFont FMenuFont;
    TFont FIconFont;
};

// Made by StartApplication, destroyed by FinishApplication.
extern TScreen* Screen;

// Shows a cursor on the whole screen as long as it lives.
class TCursorGuard {
public:
    explicit TCursorGuard(TCursor Cursor) : FOld(Screen->Cursor()) { Screen->SetCursor(Cursor); }
    ~TCursorGuard() { Screen->SetCursor(FOld); }
    TCursorGuard(const TCursorGuard&) = delete;
    TCursorGuard& operator=(const TCursorGuard&) = delete;

private:
    TCursor FOld;
};

// Disables all windows of the program as long as it lives; then those are enabled
// again and the window that was active becomes so again.
class TModalState {
public:
    TModalState();
    ~TModalState();
    TModalState(const TModalState&) = delete;
    TModalState& operator=(const TModalState&) = delete;

private:
    HWND FActive;
    std::vector<HWND> FDisabled;
};
