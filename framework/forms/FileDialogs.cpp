#include "framework/forms/FileDialogs.h"

#include <algorithm>
#include <vector>

#include "framework/rtl/FileNames.h"
#include "framework/rtl/SysUtils.h"

namespace {

// The kinds of pictures that TPicture reads.
constexpr char PictureFilter[] =
    "All (*.bmp;*.ico;*.emf;*.wmf)|*.bmp;*.ico;*.emf;*.wmf|Bitmaps (*.bmp)|*.bmp|"
    "Icons (*.ico)|*.ico|Enhanced Metafiles (*.emf)|*.emf|Metafiles (*.wmf)|*.wmf";

// In the order of TOpenOption.
constexpr DWORD OpenFlags[] = {OFN_READONLY,
                               OFN_OVERWRITEPROMPT,
                               OFN_HIDEREADONLY,
                               OFN_NOCHANGEDIR,
                               OFN_SHOWHELP,
                               OFN_NOVALIDATE,
                               OFN_ALLOWMULTISELECT,
                               OFN_EXTENSIONDIFFERENT,
                               OFN_PATHMUSTEXIST,
                               OFN_FILEMUSTEXIST,
                               OFN_CREATEPROMPT,
                               OFN_SHAREAWARE,
                               OFN_NOREADONLYRETURN,
                               OFN_NOTESTFILECREATE,
                               OFN_NONETWORKBUTTON,
                               OFN_NOLONGNAMES,
                               0,
                               OFN_NODEREFERENCELINKS,
                               OFN_ENABLEINCLUDENOTIFY,
                               OFN_ENABLESIZING,
                               OFN_DONTADDTORECENT,
                               OFN_FORCESHOWHIDDEN};

// Bytes for the name of one file, and for those of many.
constexpr size_t NameSize = 32 * 1024;
constexpr size_t NamesSize = 1024 * 1024;

// "A|*.a" -> "A\0*.a\0\0\0"; a description without patterns gets empty ones.
std::string ZeroSeparated(std::string Filter)
{
    std::replace(Filter.begin(), Filter.end(), '|', '\0');
    return Filter + std::string(3, '\0');
}

LPCSTR OrNull(const std::string& Text)
{
    return Text.empty() ? nullptr : Text.c_str();
}

} // namespace

const TMetaClass& TOpenDialog::MetaClass()
{
    static const TMetaClass Class(
        "TOpenDialog", &TCommonDialog::MetaClass(), CreateComponent<TOpenDialog>,
        {
            OBX_ROW(TOpenDialog, DefaultExt),
            OBX_ROW(TOpenDialog, FileName),
            OBX_ROW(TOpenDialog, Filter),
            OBX_ROW(TOpenDialog, FilterIndex).Default(1),
            OBX_ROW(TOpenDialog, InitialDir),
            OBX_ROW(TOpenDialog, Options).Default(TOpenOptions{ofHideReadOnly, ofEnableSizing}),
            OBX_ROW(TOpenDialog, OptionsEx).Default(TOpenOptionsEx{}),
            OBX_ROW(TOpenDialog, Title),
            Prop<&TOpenDialog::OnCanClose>("OnCanClose"),
            Prop<&TOpenDialog::OnFolderChange>("OnFolderChange"),
            Prop<&TOpenDialog::OnSelectionChange>("OnSelectionChange"),
            Prop<&TOpenDialog::OnTypeChange>("OnTypeChange"),
        });
    return Class;
}

const TMetaClass& TSaveDialog::MetaClass()
{
    static const TMetaClass Class("TSaveDialog", &TOpenDialog::MetaClass(), CreateComponent<TSaveDialog>);
    return Class;
}

const TMetaClass& TOpenPictureDialog::MetaClass()
{
    static const TMetaClass Class(
        "TOpenPictureDialog", &TOpenDialog::MetaClass(), CreateComponent<TOpenPictureDialog>,
        {OBX_ROW(TOpenPictureDialog, Filter).Stored<&TOpenPictureDialog::IsFilterStored>()});
    return Class;
}

const TMetaClass& TSavePictureDialog::MetaClass()
{
    static const TMetaClass Class(
        "TSavePictureDialog", &TSaveDialog::MetaClass(), CreateComponent<TSavePictureDialog>,
        {OBX_ROW(TSavePictureDialog, Filter).Stored<&TSavePictureDialog::IsFilterStored>()});
    return Class;
}

TOpenPictureDialog::TOpenPictureDialog(TComponent* Owner) : TOpenDialog(Owner)
{
    SetFilter(PictureFilter);
}

bool TOpenPictureDialog::IsFilterStored() const
{
    return Filter() != PictureFilter;
}

TSavePictureDialog::TSavePictureDialog(TComponent* Owner) : TSaveDialog(Owner)
{
    SetFilter(PictureFilter);
}

bool TSavePictureDialog::IsFilterStored() const
{
    return Filter() != PictureFilter;
}

DWORD TOpenDialog::Flags() const
{
    DWORD Result = FlagsOf(FOptions, OpenFlags) | OFN_ENABLEHOOK;
    if (!OldStyle())
        Result |= OFN_EXPLORER;
    if (!FOptions.Contains(ofNoLongNames))
        Result |= OFN_LONGNAMES;
    return Result;
}

bool TOpenDialog::Execute()
{
    // The call needs all of these to the end, which the component may not see.
    const std::string Patterns = ZeroSeparated(FFilter);
    const std::string Extension = FDefaultExt;
    const std::string Folder = FInitialDir;
    const std::string Caption = FTitle;
    const std::string OldName = FFileName;
    const int OldFilterIndex = FFilterIndex;
    std::vector<char> Names(OldName.begin(), OldName.end());
    Names.resize((FOptions.Contains(ofAllowMultiSelect) ? NamesSize : NameSize) + OldName.size());

    OPENFILENAMEA Data{};
    Data.lStructSize = sizeof Data;
    Data.hwndOwner = OwnerWindow();
    Data.lpstrFilter = FFilter.empty() ? nullptr : Patterns.c_str();
    Data.nFilterIndex = static_cast<DWORD>(FFilterIndex);
    Data.lpstrFile = Names.data();
    Data.nMaxFile = static_cast<DWORD>(Names.size());
    Data.lpstrInitialDir = OrNull(Folder);
    Data.lpstrTitle = OrNull(Caption);
    Data.lpstrDefExt = OrNull(Extension);
    Data.Flags = Flags();
    Data.FlagsEx = FOptionsEx.Contains(ofExNoPlacesBar) ? OFN_EX_NOPLACESBAR : 0;
    Data.lpfnHook = &HookProc;

    TStringList OldFiles;
    OldFiles.Assign(&FFiles);
    const TShowFunction Show = ShowFunction();
    const TDialogEnd End = RunModal([&] { return Show(&Data) != FALSE; });
    if (End == TDialogEnd::Chosen) {
        TakeFiles(Data);
        return true;
    }
    if (End == TDialogEnd::Cancelled) {
        FFileName = OldName;
        FFilterIndex = OldFilterIndex;
        FFiles.Assign(&OldFiles);
        if (CommDlgExtendedError() == FNERR_BUFFERTOOSMALL)
            throw EInvalidOperation(STooManyFiles);
    }
    return false;
}

// The name is one path; where several may be chosen, also a folder and the files in
// it: separated by zeros, in dialogs of the old style by blanks.
void TOpenDialog::TakeFiles(const OPENFILENAMEA& Data)
{
    const bool Several = (Data.Flags & OFN_ALLOWMULTISELECT) != 0;
    std::vector<std::string> Names;
    const char* const End = Data.lpstrFile + Data.nMaxFile;
    for (const char* At = Data.lpstrFile; At < End && *At; ++At) {
        const char* const Stop = std::find_if(At, End, [&](char Character) {
            return Character == '\0' || (Character == ' ' && OldStyle() && Several);
        });
        Names.emplace_back(At, Stop);
        if (!Several)
            break; // behind a single name stands the end of a longer one from before
        At = Stop;
    }
    if (Names.size() > 1) {
        const std::string Folder = IncludeTrailingBackslash(Names.front());
        Names.erase(Names.begin());
        for (std::string& Name : Names)
            if (!IsAbsoluteName(Name))
                Name = Folder + Name;
    }
    FFiles.Clear();
    for (const std::string& Name : Names)
        FFiles.Add(Name);
    FFileName = Names.empty() ? std::string() : Names.front();
    FFilterIndex = static_cast<int>(Data.nFilterIndex);
    for (const TOpenOption Option : {ofReadOnly, ofExtensionDifferent})
        if (Data.Flags & OpenFlags[Option])
            FOptions.Include(Option);
        else
            FOptions.Exclude(Option);
}

// The hook window is a part of the dialog in the style of today.
HWND TOpenDialog::DialogWindow(HWND HookWindow) const
{
    return OldStyle() ? HookWindow : GetParent(HookWindow);
}

bool TOpenDialog::IsInitialised(const TMessage& Msg) const
{
    if (OldStyle())
        return TCommonDialog::IsInitialised(Msg);
    return Msg.Msg == WM_NOTIFY && reinterpret_cast<const NMHDR*>(Msg.LParam)->code == CDN_INITDONE;
}

bool TOpenDialog::HookMessage(HWND, TMessage& Msg)
{
    static const UINT FileOk = RegisterWindowMessageA(FILEOKSTRINGA);
    if (OldStyle() && Msg.Msg == FileOk) {
        TakeFiles(*reinterpret_cast<const OPENFILENAMEA*>(Msg.LParam));
        return !DoCanClose();
    }
    if (OldStyle() || Msg.Msg != WM_NOTIFY)
        return false;
    return Notified(*reinterpret_cast<const OFNOTIFYA*>(Msg.LParam), Msg);
}

// The events come last: their handlers may destroy the component.
bool TOpenDialog::Notified(const OFNOTIFYA& Notification, TMessage& Msg)
{
    switch (Notification.hdr.code) {
    case CDN_FILEOK:
        TakeFiles(*Notification.lpOFN);
        Msg.Result = !DoCanClose();
        return Msg.Result != 0;
    case CDN_FOLDERCHANGE:
        DoFolderChange();
        return true;
    case CDN_SELCHANGE: {
        std::string Name(NameSize, '\0');
        const LRESULT Size =
            SendMessageA(FHandle, CDM_GETFILEPATH, Name.size(), reinterpret_cast<LPARAM>(Name.data()));
        if (Size > 0 && Size <= static_cast<LRESULT>(Name.size()))
            FFileName = Name.substr(0, Name.find('\0'));
        DoSelectionChange();
        return true;
    }
    case CDN_TYPECHANGE:
        FFilterIndex = static_cast<int>(Notification.lpOFN->nFilterIndex);
        DoTypeChange();
        return true;
    case CDN_HELP:
        return Help();
    default:
        return false;
    }
}

bool TOpenDialog::DoCanClose()
{
    bool Result = true;
    if (OnCanClose)
        OnCanClose(this, Result);
    return Result;
}

void TOpenDialog::DoFolderChange()
{
    if (OnFolderChange)
        OnFolderChange(this);
}

void TOpenDialog::DoSelectionChange()
{
    if (OnSelectionChange)
        OnSelectionChange(this);
}

void TOpenDialog::DoTypeChange()
{
    if (OnTypeChange)
        OnTypeChange(this);
}
