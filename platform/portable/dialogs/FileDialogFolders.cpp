// Walking through folders in the file dialogs, and choosing.
#include <algorithm>
#include <filesystem>

#include "platform/portable/dialogs/FileDialog.h"
#include "platform/portable/dialogs/ShellView.h"

namespace fs = std::filesystem;

namespace {

constexpr int IndentOfPlace = 10; // pixels a level

std::string CurrentFolder()
{
    std::error_code Error;
    const fs::path Path = fs::current_path(Error);
    return Error ? "/" : Path.string();
}

bool HasWildcards(const std::string& Name)
{
    return Name.find_first_of("*?") != Name.npos;
}

std::string ExtensionOf(const std::string& Path)
{
    const std::string Name = NameOfPath(Path);
    const std::size_t Dot = Name.rfind('.');
    return Dot == Name.npos ? "" : Name.substr(Dot + 1);
}

} // namespace

// The folder of the file that the application names, else the one it asks for.
void TFileDialog::StartFolder()
{
    const std::string Here = CurrentFolder();
    const std::string Wanted = FData.lpstrInitialDir ? ResolvePath(Here, FData.lpstrInitialDir) : Here;
    FFolder = FolderExists(Wanted) ? Wanted : Here;
    const std::string File = FData.lpstrFile ? FData.lpstrFile : "";
    if (File.find('/') != File.npos) {
        const std::string Folder = ResolvePath(Here, FolderOfPath(File));
        if (FolderExists(Folder))
            FFolder = Folder;
    }
    SetText(cmb13, NameOfPath(File));
    FillPlaces();
    FillList();
}

bool TFileDialog::GoTo(const std::string& Folder)
{
    if (!FolderExists(Folder))
        return false;
    FFolder = Folder;
    FillPlaces();
    FillList();
    Notify(CDN_FOLDERCHANGE);
    return true;
}

void TFileDialog::FillList()
{
    FFilling = true;
    ListFolder(FFolder, FPatterns, Has(OFN_FORCESHOWHIDDEN), FEntries);
    FillShellView(FView, FEntries);
    FFilling = false;
}

// The folders above the current one, and that itself.
void TFileDialog::FillPlaces()
{
    FPlaces = {FFolder};
    while (FPlaces.front() != FolderOfPath(FPlaces.front()))
        FPlaces.insert(FPlaces.begin(), FolderOfPath(FPlaces.front()));
    Send(cmb2, CB_RESETCONTENT);
    for (const std::string& Path : FPlaces)
        AddString(cmb2, Path == "/" ? Path : NameOfPath(Path));
    Send(cmb2, CB_SETCURSEL, FPlaces.size() - 1);
}

void TFileDialog::DrawPlace(const DRAWITEMSTRUCT& Item) const
{
    const auto Index = static_cast<int>(Item.itemID);
    const bool InField = (Item.itemState & ODS_COMBOBOXEDIT) != 0;
    DrawListItem(Item, Index >= 0 ? ItemText(cmb2, Index) : "", 2 + (InField ? 0 : Index * IndentOfPlace));
}

void TFileDialog::PlaceChosen()
{
    const auto Index = static_cast<std::size_t>(Send(cmb2, CB_GETCURSEL));
    if (Index < FPlaces.size())
        GoTo(std::string(FPlaces[Index]));
}

void TFileDialog::ChangeFilter()
{
    const LRESULT Index = Send(cmb1, CB_GETCURSEL);
    if (Index < 0)
        return;
    FPatterns = FFilters[static_cast<std::size_t>(Index)].Patterns;
    FData.nFilterIndex = static_cast<DWORD>(Index) + 1;
    Notify(CDN_TYPECHANGE);
    if (Alive())
        FillList();
}

void TFileDialog::MakeFolder()
{
    std::string Path = ResolvePath(FFolder, "New Folder");
    for (int Number = 2; PathExists(Path); ++Number)
        Path = ResolvePath(FFolder, "New Folder (" + std::to_string(Number) + ")");
    std::error_code Error;
    if (!fs::create_directory(Path, Error))
        return Tell("The folder cannot be made: " + Error.message());
    FillList();
}

void TFileDialog::SelectionChanged()
{
    if (FFilling)
        return;
    std::vector<std::string> Names;
    for (const std::size_t Index : ChosenInView(FView))
        if (!FEntries[Index].Folder)
            Names.push_back(FEntries[Index].Name);
    if (!Names.empty())
        SetText(cmb13, JoinNames(Names));
    Notify(CDN_SELCHANGE);
}

void TFileDialog::OpenChosen()
{
    const std::vector<std::size_t> Chosen = ChosenInView(FView);
    if (Chosen.size() == 1 && FEntries[Chosen.front()].Folder)
        GoTo(ResolvePath(FFolder, FEntries[Chosen.front()].Name));
    else if (!Chosen.empty())
        Accept();
}

std::string TFileDialog::CurrentPath() const
{
    const std::vector<std::string> Names = SplitNames(Text(cmb13));
    return Names.size() == 1 ? ResolvePath(FFolder, Names.front()) : FFolder + "/" + Text(cmb13);
}

// A name that is a folder or a pattern changes what is listed.
bool TFileDialog::Browse(const std::string& Name)
{
    if (HasWildcards(Name)) {
        FPatterns = SplitPatterns(Name);
        FillList();
        return true;
    }
    if (!GoTo(ResolvePath(FFolder, Name)))
        return false;
    if (Alive())
        SetText(cmb13, "");
    return true;
}

void TFileDialog::Accept()
{
    std::vector<std::string> Names = SplitNames(Text(cmb13));
    if (Names.empty())
        return IsChild(FView, GetFocus()) ? OpenChosen() : void();
    if (!Has(OFN_ALLOWMULTISELECT) || Names.size() == 1) {
        Names.resize(1);
        if (Browse(Names.front()))
            return;
    }
    std::vector<std::string> Paths;
    for (const std::string& Name : Names) {
        Paths.push_back(WithExtension(ResolvePath(FFolder, Name)));
        if (FolderOfPath(Paths.back()) != FolderOfPath(Paths.front()))
            return Tell("The files must be in one folder.");
        if (!Has(OFN_NOVALIDATE) && !MayChoose(Paths.back()))
            return;
    }
    if (!Store(Paths))
        return End(false);
    if (Refused() || !Alive())
        return;
    if (!Has(OFN_NOCHANGEDIR)) {
        std::error_code Ignored; // the folder of a file to be made may not be there yet
        fs::current_path(FolderOfPath(Paths.front()), Ignored);
    }
    End(true);
}

std::string TFileDialog::WithExtension(const std::string& Path) const
{
    const bool Lacks = NameOfPath(Path).find('.') == std::string::npos;
    return Lacks && !FExtension.empty() && !(PathExists(Path) && !FSaves) ? Path + "." + FExtension : Path;
}

bool TFileDialog::Ask(const std::string& Text) const
{
    char Title[256];
    GetWindowTextA(Window(), Title, sizeof Title);
    return MessageBoxA(Window(), Text.c_str(), Title, MB_YESNO | MB_ICONEXCLAMATION) == IDYES;
}

bool TFileDialog::MayChoose(const std::string& Path) const
{
    const bool Exists = PathExists(Path);
    if (FolderExists(Path))
        return Tell("This is a folder, not a file."), false;
    if (Has(OFN_PATHMUSTEXIST | OFN_FILEMUSTEXIST) && !FolderExists(FolderOfPath(Path)))
        return Tell("Path does not exist.\nPlease verify that the correct path was given."), false;
    if (Has(OFN_FILEMUSTEXIST) && !FSaves && !Exists && !Has(OFN_CREATEPROMPT))
        return Tell("File not found.\nPlease verify that the correct file name was given."), false;
    if (Has(OFN_CREATEPROMPT) && !Exists)
        return Ask("File does not exist.\nDo you want to create it?");
    if (Has(OFN_OVERWRITEPROMPT) && FSaves && Exists)
        return Ask("File already exists.\nDo you want to replace it?");
    return true;
}

// Hands the choice to the application; false when its buffer is too small.
bool TFileDialog::Store(const std::vector<std::string>& Paths)
{
    if (!StorePaths(FData, Paths))
        return DialogError(FNERR_BUFFERTOOSMALL);
    FData.Flags &= ~DWORD{OFN_READONLY | OFN_EXTENSIONDIFFERENT};
    if (Checked(chx1))
        FData.Flags |= OFN_READONLY;
    if (!FExtension.empty() && ExtensionOf(Paths.front()) != FExtension)
        FData.Flags |= OFN_EXTENSIONDIFFERENT;
    if (const LRESULT Index = Send(cmb1, CB_GETCURSEL); Index >= 0)
        FData.nFilterIndex = static_cast<DWORD>(Index) + 1;
    return true;
}

namespace {

BOOL Choose(OPENFILENAMEA* Data, bool Saves)
{
    constexpr DWORD OldSize = offsetof(OPENFILENAMEA, pvReserved);
    DialogError(0);
    if (!Data)
        return DialogError(CDERR_INITIALIZATION);
    if (Data->lStructSize != sizeof(OPENFILENAMEA) && Data->lStructSize != OldSize)
        return DialogError(CDERR_STRUCTSIZE);
    if ((Data->Flags & OFN_ENABLEHOOK) && !Data->lpfnHook)
        return DialogError(CDERR_NOHOOK);
    if (Data->Flags & (OFN_ENABLETEMPLATE | OFN_ENABLETEMPLATEHANDLE))
        return DialogError(CDERR_NOTEMPLATE);
    return TFileDialog(*Data, Saves).Run(Data->hwndOwner);
}

} // namespace

BOOL GetOpenFileNameA(OPENFILENAMEA* Open)
{
    return Choose(Open, false);
}

BOOL GetSaveFileNameA(OPENFILENAMEA* Save)
{
    return Choose(Save, true);
}
