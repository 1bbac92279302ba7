#include "designer/Workspace.h"

#include <algorithm>
#include <filesystem>

#include "framework/design/ProjectWriter.h"
#include "framework/rtl/SysUtils.h"
#include "framework/streaming/FormFile.h"

namespace {

// An empty form named after its file: "OrderForm.dfm" holds OrderForm: TOrderForm.
TFormDocument NewDocument(const std::string& FileName)
{
    std::string Name = ChangeFileExt(ExtractFileName(FileName), "");
    if (!IsValidIdent(Name))
        Name = "Form1";
    TFormDocument Result;
    Result.Root = TFormObject(TFormObjectKind::Object, Name, "T" + Name);
    const std::pair<const char*, TFormValue> Properties[] = {
        {"Left", TFormValue::Integer(0)},           {"Top", TFormValue::Integer(0)},
        {"Caption", TFormValue::String(Name)},      {"ClientHeight", TFormValue::Integer(300)},
        {"ClientWidth", TFormValue::Integer(400)},  {"Color", TFormValue::Ident("clBtnFace")},
        {"PixelsPerInch", TFormValue::Integer(96)}, {"TextHeight", TFormValue::Integer(13)},
    };
    for (const auto& [Property, Value] : Properties)
        Result.Root.Add(Property, Value);
    return Result;
}

// From the root, with the platform's separators.
std::string FullNameOf(const std::string& FileName)
{
    const std::filesystem::path Path(std::u8string(FileName.begin(), FileName.end()));
    const std::u8string Full = std::filesystem::absolute(Path).lexically_normal().make_preferred().u8string();
    return {Full.begin(), Full.end()};
}

// As project files have it.
std::string NameInProject(const std::string& FullName, const TProject& Project)
{
    const std::string Folder = FullNameOf(ExtractFilePath(Project.FileName));
    std::string Result = FullName.starts_with(Folder) ? FullName.substr(Folder.size()) : FullName;
    std::ranges::replace(Result, '\\', '/');
    return Result;
}

} // namespace

TWorkspace::TWorkspace()
{
    ToolServices = this;
}

TWorkspace::~TWorkspace()
{
    ToolServices = nullptr;
}

void TWorkspace::Open(const std::string& Path)
{
    if (IsFormFileName(Path))
        OpenForm(Path);
    else
        OpenProject(Path);
}

bool TWorkspace::OpenProject(const std::string& FileOrFolder)
{
    TProject Wanted = ::OpenProject(FileOrFolder);
    if (!CloseAll())
        return false;
    if (RecoverProject(Wanted.FileName))
        Wanted = ::OpenProject(FileOrFolder);
    FProject = Wanted;
    Tell(OnProject);
    return true;
}

bool TWorkspace::NewProject(const std::string& FileName)
{
    TProject Wanted;
    Wanted.FileName = FullNameOf(FileName);
    Wanted.Name = ChangeFileExt(ExtractFileName(FileName), "");
    if (!CloseAll())
        return false;
    WriteProject(Wanted);
    FProject = Wanted;
    Tell(OnProject);
    return true;
}

TDesign& TWorkspace::OpenForm(const std::string& FileName)
{
    const std::string Full = FullNameOf(FileName);
    const auto Found =
        std::ranges::find_if(FDesigns, [&](const auto& Each) { return Each->Model->FileName() == Full; });
    if (Found == FDesigns.end())
        return Add(std::make_unique<TFormModel>(Full));
    Activate(Found->get());
    return **Found;
}

TDesign& TWorkspace::NewForm(const std::string& FileName)
{
    const std::string Full = FullNameOf(FileName);
    TDesign& Result = Add(std::make_unique<TFormModel>(Full, NewDocument(Full)));
    if (!FProject.FileName.empty()) {
        FProject.Forms.push_back(NameInProject(Full, FProject));
        // An opened folder has no project file, and finds its forms by itself.
        if (FileExists(FProject.FileName))
            WriteProject(FProject);
        Tell(OnProject);
    }
    return Result;
}

TDesign& TWorkspace::Add(std::unique_ptr<TFormModel> Model)
{
    FDesigns.push_back(std::make_unique<TDesign>(std::move(Model)));
    TDesign& Result = *FDesigns.back();
    Connect(Result);
    Result.Surface.Show(NextPlace());
    Activate(&Result);
    Tell(OnProject);
    return Result;
}

// One beside the other, so that all their captions are seen.
TPoint TWorkspace::NextPlace() const
{
    constexpr size_t Most = 10;
    const int Offset = static_cast<int>((FDesigns.size() - 1) % Most) * 24;
    const TPoint First = OnFirstPlace ? OnFirstPlace() : TPoint{};
    return {First.x + Offset, First.y + Offset};
}

void TWorkspace::Connect(TDesign& Design)
{
    Design.Model->OnChanged = [this, &Design] {
        Design.Surface.Refresh();
        Tell(OnChanged);
    };
    Design.Model->OnSelection = [this, &Design] {
        Design.Surface.Refresh();
        Tell(OnSelection);
    };
    Design.Model->BeforeReload = [&Design] { Design.Surface.Hide(); };
    Design.Model->AfterReload = [&Design] { Design.Surface.ShowAgain(); };
    Design.Surface.OnClose = [this, &Design] { FClosing = &Design; };
    Design.Surface.OnPlaced = [this] { Tell(OnPlaced); };
    Design.Surface.OnKey = [this](const MSG& Message) {
        if (OnKey)
            OnKey(Message);
    };
    Design.Surface.OnContextMenu = [this](const TPoint& Point) {
        if (OnContextMenu)
            OnContextMenu(Point);
    };
}

void TWorkspace::Save(TDesign& Design)
{
    Design.Model->Save();
}

bool TWorkspace::CloseForm(TDesign& Design)
{
    if (Design.Model->IsModified()) {
        const TAnswer Answer = OnAsk ? OnAsk(*Design.Model) : TAnswer::Cancel;
        if (Answer == TAnswer::Cancel)
            return false;
        if (Answer == TAnswer::Save)
            Save(Design);
    }
    Remove(Design);
    return true;
}

void TWorkspace::Remove(TDesign& Design)
{
    const auto Found =
        std::ranges::find_if(FDesigns, [&](const auto& Each) { return Each.get() == &Design; });
    const std::unique_ptr<TDesign> Leaving = std::move(*Found);
    FDesigns.erase(Found);
    // Whoever shows it lets go before it is destroyed.
    if (FActive == &Design)
        Activate(FDesigns.empty() ? nullptr : FDesigns.back().get());
    Tell(OnProject);
}

bool TWorkspace::CloseAll()
{
    while (!FDesigns.empty())
        if (!CloseForm(*FDesigns.back()))
            return false;
    return true;
}

bool TWorkspace::SaveAll()
{
    for (const auto& Each : FDesigns)
        if (Each->Model->IsModified())
            Save(*Each);
    return true;
}

void TWorkspace::Activate(TDesign* Design)
{
    if (FActive == Design)
        return;
    FActive = Design;
    Tell(OnActive);
}

void TWorkspace::Settle()
{
    if (FMustReload)
        ReloadProject();
}

bool TWorkspace::HandleMessage(const MSG& Message)
{
    Settle();
    bool Result = false;
    for (size_t I = 0; I < FDesigns.size() && !Result; ++I) {
        TDesign& Each = *FDesigns[I];
        const HWND Window = Each.Surface.WindowHandle();
        const bool IsClick = Message.message == WM_LBUTTONDOWN || Message.message == WM_RBUTTONDOWN;
        if (IsClick && Window && (Message.hwnd == Window || IsChild(Window, Message.hwnd)))
            Activate(&Each);
        Result = Each.Surface.HandleMessage(Message);
    }
    if (TDesign* const Closing = std::exchange(FClosing, nullptr))
        CloseForm(*Closing);
    return Result;
}

bool TWorkspace::SaveProject()
{
    return SaveAll();
}

void TWorkspace::ReloadProject()
{
    // New windows would take the input from the modal form.
    FMustReload = Application->ModalLevel() > 0;
    if (FMustReload)
        return;
    std::vector<std::string> Open;
    for (const auto& Each : FDesigns)
        Open.push_back(Each->Model->FileName());
    while (!FDesigns.empty())
        Remove(*FDesigns.back());
    if (!FProject.FileName.empty() && FileExists(FProject.FileName))
        FProject = ReadProject(FProject.FileName);
    for (const std::string& Each : Open)
        if (FileExists(Each))
            OpenForm(Each);
    Tell(OnProject);
}

void TWorkspace::Tell(const std::function<void()>& Event) const
{
    if (Event)
        Event();
}
