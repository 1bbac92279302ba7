#include "editors/Qctedit.h"

#include "core/Hourglass.h"
#include "core/KeyLines.h"
#include "framework/forms/Dialogs.h"
#include "framework/forms/FormParts.h"
#include "framework/forms/ListBoxes.h"
#include "framework/forms/PushButtons.h"

namespace {

// Posted to the editor when it is shown.
constexpr UINT ScanMessage = WM_APP;

} // namespace

const TMetaClass& TDlgEditor::MetaClass()
{
    static const TMetaClass Class("TDlgEditor", &TPropertiesEditor::MetaClass(), CreateComponent<TDlgEditor>,
                                  {}, {Published<&TDlgEditor::BtnRescanClick>("BtnRescanClick")});
    return Class;
}

void TDlgEditor::DoCreate()
{
    FindPart(*this, "BtnRescan", BtnRescan);
    inherited::DoCreate();
}

// The dialogs that are scanned appear over the editor: they wait until it is there.
void TDlgEditor::DoShow()
{
    inherited::DoShow();
    PostMessageA(Handle(), ScanMessage, 0, 0);
}

void TDlgEditor::Dispatch(TMessage& Message)
{
    if (Message.Msg != ScanMessage)
        return inherited::Dispatch(Message);
    if (FScanning || !UpdateOrgProps())
        return;
    LeaveBox();
    RefreshPropList();
}

TCommonDialogTranslator& TDlgEditor::DialogTranslator() const
{
    return dynamic_cast<TCommonDialogTranslator&>(Translator());
}

void TDlgEditor::TakeTranslations()
{
    const TSortList& Originals = DialogTranslator().Originals();
    FWorking.Assign(DialogTranslator().Translations());
    FOriginals.Assign(Originals);
    for (int I = 0; I < Originals.Count(); ++I)
        FScanned.insert(Originals.Get(I).substr(0, Originals.Get(I).find('.')));
    RefreshPropList();
}

void TDlgEditor::GiveTranslations()
{
    DialogTranslator().Translations()->Assign(&FWorking);
    DialogTranslator().SetOriginals(&FOriginals.Lines());
}

// A dialog of a class that was not scanned; null when there is none.
TCommonDialog* TDlgEditor::FirstNew(const TComponent& Owner) const
{
    for (int I = 0; I < Owner.ComponentCount(); ++I)
        if (auto* const Dialog = dynamic_cast<TCommonDialog*>(Owner.Components(I));
            Dialog && !FScanned.contains(Dialog->ClassName()))
            return Dialog;
    return nullptr;
}

TCommonDialog* TDlgEditor::FirstNew() const
{
    if (Translator().HasState(csDesigning))
        return Translator().Owner() ? FirstNew(*Translator().Owner()) : nullptr;
    for (int I = 0; I < Application->ComponentCount(); ++I)
        if (const TComponent* const Each = Application->Components(I); Each != this)
            if (TCommonDialog* const Dialog = FirstNew(*Each))
                return Dialog;
    return nullptr;
}

// Handlers of a dialog may change what there is, also close the editor.
bool TDlgEditor::UpdateOrgProps()
{
    const THourglass Hourglass;
    bool Found = false;
    FScanning = true;
    while (TCommonDialog* const Dialog = ModalResult() == mrNone ? FirstNew() : nullptr) {
        Found = true;
        Scan(*Dialog);
    }
    FScanning = false;
    return Found;
}

// A dialog that the system cannot show has no properties to offer.
void TDlgEditor::Scan(TCommonDialog& Dialog)
{
    FScanned.insert(Dialog.ClassName());
    SetModified();
    TStringList Lines;
    try {
        DialogTranslator().GetDlgProps(&Dialog, &Lines);
    } catch (...) {
        Application->HandleException(this);
    }
    FOriginals.AddNew(Lines);
}

void TDlgEditor::BtnRescanClick(TObject*)
{
    if (FScanning)
        return;
    FOriginals.Clear();
    FScanned.clear();
    ListAvail->Clear();
    SetModified();
    UpdateOrgProps();
    LeaveBox();
    RefreshPropList();
}

// One of the same form and language, that files take for the edited one.
std::unique_ptr<TCommonDialogTranslator> TDlgEditor::TemporaryTranslator() const
{
    auto Result = std::make_unique<TCommonDialogTranslator>(Translator().Owner());
    Result->InternalTranslate(false);
    Result->SetLocale(Translator().Locale());
    Result->SetTranslations(&FWorking);
    Result->SetOriginals(&FOriginals.Lines());
    return Result;
}

bool TDlgEditor::TranslateFrom(const std::string& FileName)
{
    const auto Temporary = TemporaryTranslator();
    if (!Temporary->TranslateFrom(FileName))
        return false;
    FWorking.Assign(Temporary->Translations());
    return true;
}

// The file may know dialogs that are not here.
bool TDlgEditor::LoadFrom(const std::string& FileName)
{
    const auto Temporary = TemporaryTranslator();
    if (!Temporary->LoadFrom(FileName))
        return false;
    FWorking.Assign(Temporary->Translations());
    FOriginals.AddNew(Temporary->Originals());
    return true;
}

void TDlgEditor::SaveTo(const std::string& FileName)
{
    TemporaryTranslator()->SaveTo(FileName);
}

void TDlgEditor::ExportTo(const std::string& FileName)
{
    TemporaryTranslator()->TranslateTo(FileName);
}
