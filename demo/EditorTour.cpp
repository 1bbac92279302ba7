#include "demo/EditorTour.h"

#include <filesystem>
#include <iostream>
#include <set>

#include "Obxc3/Obxc3.h"
#include "core/Frame.h"
#include "demo/Language.h"
#include "demo/Programs.h"
#include "editors/EditorLanguage.h"
#include "editors/Editors.h"
#include "editors/TranslationEditor.h"
#include "framework/forms/ListBoxes.h"
#include "framework/forms/MessageForms.h"
#include "framework/forms/PageControls.h"
#include "framework/rtl/Files.h"
#include "platform/Picture.h"

namespace {

// While it lives, each editor that opens is taken pictures of, and closed.
class TPhotographer {
public:
    TPhotographer(std::string Folder, std::string Code) : FFolder(std::move(Folder)), FCode(std::move(Code))
    {
        Current = this;
        FTimer = SetTimer(nullptr, 0, 20, &Tick);
    }
    ~TPhotographer()
    {
        KillTimer(nullptr, FTimer);
        Current = nullptr;
    }
    TPhotographer(const TPhotographer&) = delete;
    TPhotographer& operator=(const TPhotographer&) = delete;

    int Pictures() const { return FPictures; }
    bool Failed() const { return FFailed; }

private:
    static void CALLBACK Tick(HWND, UINT, UINT_PTR, DWORD)
    {
        // Looking at the dialogs is a change that may be discarded.
        if (auto* const Question = dynamic_cast<TMessageForm*>(Screen->ActiveForm())) {
            Question->SetModalResult(mrYes);
            return;
        }
        auto* const Editor = dynamic_cast<TTranslationEditor*>(Screen->ActiveForm());
        // The hourglass says that the editor is at work, or looks at dialogs.
        if (!Editor || !Editor->Visible() || Editor->ModalResult() != mrNone || FBusy ||
            Screen->Cursor() != crDefault)
            return;
        FBusy = true;
        Current->Visit(*Editor);
        FBusy = false;
        Editor->SetModalResult(mrCancel);
    }

    void Visit(TTranslationEditor& Editor)
    {
        if (Editor.PropList->Items()->Count() > 2) {
            Editor.PropList->SetItemIndex(2);
            Editor.PropList->SetSelected(2, true);
            Editor.PropListClick(Editor.PropList);
        }
        VisitPages(*Editor.Notebook, Editor, Editor.ClassName().substr(1));
    }

    void VisitPages(TPageControl& Pages, TTranslationEditor& Editor, const std::string& Name)
    {
        for (int I = 0; I < Pages.PageCount(); ++I) {
            TTabSheet& Page = *Pages.Pages(I);
            if (!Page.TabVisible())
                continue;
            Pages.SetActivePage(&Page);
            if (Pages.OnChange)
                Pages.OnChange(&Pages);
            const std::string PageName = Name + "-" + Page.Name().substr(3);
            TPageControl* const Inner = InnerPages(Page);
            if (Inner)
                VisitPages(*Inner, Editor, PageName);
            else
                TakePicture(Editor, PageName);
        }
    }

    static TPageControl* InnerPages(const TTabSheet& Page)
    {
        for (int I = 0; I < Page.ControlCount(); ++I)
            if (auto* const Pages = dynamic_cast<TPageControl*>(Page.Controls(I)))
                return Pages;
        return nullptr;
    }

    void TakePicture(TTranslationEditor& Editor, const std::string& Name)
    {
        Application->ProcessMessages();
        const std::string File = (std::filesystem::path(FFolder) / (Name + "-" + FCode + ".png")).string();
        if (SaveWindowPicture(Editor.Handle(), File)) {
            ++FPictures;
            return;
        }
        std::cerr << "demo: cannot write " << File << "\n";
        FFailed = true;
    }

    static inline TPhotographer* Current = nullptr;
    static inline bool FBusy = false;
    UINT_PTR FTimer;
    std::string FFolder;
    std::string FCode;
    int FPictures = 0;
    bool FFailed = false;
};

// One translator of each kind that has an editor.
std::vector<TTranslatorFrame*> Translators(const std::vector<TForm*>& Forms)
{
    std::vector<TTranslatorFrame*> Result;
    std::set<std::string> Kinds{"TButtonTranslator"};
    const auto Visit = [&](const TComponent& Owner) {
        for (int I = 0; I < Owner.ComponentCount(); ++I)
            if (auto* const Each = dynamic_cast<TTranslatorFrame*>(Owner.Components(I));
                Each && Kinds.insert(Each->ClassName()).second)
                Result.push_back(Each);
    };
    for (const TForm* const Form : Forms)
        Visit(*Form);
    for (int I = 0; I < Application->ComponentCount(); ++I)
        Visit(*Application->Components(I));
    return Result;
}

} // namespace

int RunEditorTour(const std::string& Folder)
{
    std::filesystem::create_directories(Folder);
    const TApplicationScope Scope;
    const TPackageScope Package;
    const TEditorsScope Editors;
    RegisterDemoForms();
    const std::vector<TForm*> Forms = CreateBookingDesk();
    Forms.front()->Show();
    int Pictures = 0;
    bool Failed = false;
    for (const TLanguage& Language : Languages()) {
        SetEditorLocale(Language.Locale);
        for (TTranslatorFrame* const Each : Translators(Forms)) {
            TPhotographer Photographer(Folder, Language.Code);
            Each->ShowEditor();
            Pictures += Photographer.Pictures();
            Failed = Failed || Photographer.Failed() || Photographer.Pictures() == 0;
        }
    }
    std::cout << Pictures << " pictures in " << Folder << "\n";
    return Failed ? 1 : 0;
}
