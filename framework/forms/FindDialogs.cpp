#include "framework/forms/FindDialogs.h"

#include "framework/forms/FindSession.h"

namespace {

// In the order of TFindOption.
constexpr DWORD FindFlags[] = {FR_DOWN,        FR_FINDNEXT,  FR_HIDEMATCHCASE, FR_HIDEWHOLEWORD,
                               FR_HIDEUPDOWN,  FR_MATCHCASE, FR_NOMATCHCASE,   FR_NOUPDOWN,
                               FR_NOWHOLEWORD, FR_REPLACE,   FR_REPLACEALL,    FR_WHOLEWORD,
                               FR_SHOWHELP};

// What the dialog tells, not what it is told.
constexpr DWORD Wishes = FR_FINDNEXT | FR_REPLACE | FR_REPLACEALL;

} // namespace

const TMetaClass& TFindDialog::MetaClass()
{
    static const TMetaClass Class("TFindDialog", &TCommonDialog::MetaClass(), CreateComponent<TFindDialog>,
                                  {
                                      OBX_ROW(TFindDialog, FindText),
                                      OBX_ROW(TFindDialog, Options).Default(TFindOptions{frDown}),
                                      Prop<&TFindDialog::OnFind>("OnFind"),
                                  });
    return Class;
}

const TMetaClass& TReplaceDialog::MetaClass()
{
    static const TMetaClass Class("TReplaceDialog", &TFindDialog::MetaClass(),
                                  CreateComponent<TReplaceDialog>,
                                  {
                                      OBX_ROW(TReplaceDialog, ReplaceText),
                                      Prop<&TReplaceDialog::OnReplace>("OnReplace"),
                                  });
    return Class;
}

TFindDialog::TFindDialog(TComponent* Owner) : TCommonDialog(Owner) {}

TFindDialog::~TFindDialog()
{
    TFindSession::Release(std::move(FFindSession));
}

bool TFindDialog::Execute()
{
    if (FHandle) {
        SetActiveWindow(FHandle);
        return true;
    }
    TFindSession::Release(std::move(FFindSession));
    FFindSession = std::make_unique<TFindSession>(*this);
    return FFindSession->Show(ShowFunction(), FlagsOf(FOptions, FindFlags) & ~Wishes);
}

void TFindDialog::CloseDialog()
{
    if (FHandle)
        FFindSession->Close();
}

TPoint TFindDialog::Position() const
{
    if (!FHandle)
        return FPosition;
    TRect Place{};
    GetWindowRect(FHandle, &Place);
    return {Place.left, Place.top};
}

void TFindDialog::SetPosition(const TPoint& Value)
{
    FPosition = Value;
    if (FHandle)
        SetWindowPos(FHandle, nullptr, static_cast<int>(Value.x), static_cast<int>(Value.y), 0, 0,
                     SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

bool TFindDialog::MessageHook(TMessage& Msg)
{
    if (!FFindSession || !FFindSession->IsFindMessage(Msg))
        return inherited::MessageHook(Msg);
    const auto& Data = *reinterpret_cast<const FINDREPLACEA*>(Msg.LParam);
    if (Data.Flags & FR_DIALOGTERM)
        Closed();
    else
        Answer(Data);
    return true;
}

void TFindDialog::Answer(const FINDREPLACEA& Data)
{
    FFindText = Data.lpstrFindWhat;
    FReplaceText = Data.lpstrReplaceWith;
    for (const TFindOption Option : {frDown, frMatchCase, frWholeWord, frFindNext, frReplace, frReplaceAll})
        if (Data.Flags & FindFlags[Option])
            FOptions.Include(Option);
        else
            FOptions.Exclude(Option);
    if (Data.Flags & FR_FINDNEXT)
        DoFind();
    else if (Data.Flags & (FR_REPLACE | FR_REPLACEALL))
        DoReplace();
}

void TFindDialog::Shown(HWND Window)
{
    FHandle = Window;
    if (FPosition.x != -1 || FPosition.y != -1)
        SetPosition(FPosition);
    DoShow();
}

void TFindDialog::Closed()
{
    if (!FHandle)
        return;
    FPosition = Position();
    FHandle = nullptr;
    // The handler may be a part of the form that is going.
    if (!Owner() || !Owner()->HasState(csDestroying))
        DoClose();
}

void TFindDialog::DoFind()
{
    if (OnFind)
        OnFind(this);
}

void TReplaceDialog::DoReplace()
{
    if (OnReplace)
        OnReplace(this);
}
