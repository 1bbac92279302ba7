#include "demo/LanguageForm.h"

#include "Qlt/Qlt.h"
#include "framework/forms/ComboBoxes.h"
#include "framework/forms/FormParts.h"
#include "framework/forms/GroupBoxes.h"
#include "framework/forms/Labels.h"
#include "framework/forms/ListBoxes.h"
#include "framework/forms/Menus.h"
#include "framework/forms/Notebooks.h"
#include "framework/forms/PushButtons.h"
#include "framework/rtl/SysUtils.h"

TLanguageForm* LanguageForm = nullptr;

namespace {

constexpr double SamplePrice = 1234.5;
constexpr double SampleNumber = -9876543.21;

// A selector that is given up keeps its languages; here they would confuse.
void RemoveLanguages(TComponent* Selector)
{
    if (auto* const Menu = dynamic_cast<TMenu*>(Selector))
        Menu->Items()->Clear();
    else if (auto* const Item = dynamic_cast<TMenuItem*>(Selector))
        Item->Clear();
    else if (auto* const ListBox = dynamic_cast<TListBox*>(Selector))
        ListBox->Items()->Clear();
    else if (auto* const ComboBox = dynamic_cast<TComboBox*>(Selector))
        ComboBox->Items()->Clear();
    else if (auto* const RadioGroup = dynamic_cast<TRadioGroup*>(Selector))
        RadioGroup->Items()->Clear();
    else if (auto* const TabSet = dynamic_cast<TTabSet*>(Selector))
        TabSet->Tabs()->Clear();
}

} // namespace

const TMetaClass& TLanguageForm::MetaClass()
{
    static const TMetaClass Class("TLanguageForm", &TForm::MetaClass(), CreateComponent<TLanguageForm>, {},
                                  {Published<&TLanguageForm::CbxSelectorChange>("CbxSelectorChange"),
                                   Published<&TLanguageForm::BtnPopupClick>("BtnPopupClick")});
    return Class;
}

TLanguageForm::~TLanguageForm()
{
    LanguageForm = nullptr;
}

void TLanguageForm::Loaded()
{
    inherited::Loaded();
    FindPart(*this, "LblDateValue", LblDateValue);
    FindPart(*this, "LblShortDateValue", LblShortDateValue);
    FindPart(*this, "LblTimeValue", LblTimeValue);
    FindPart(*this, "LblPriceValue", LblPriceValue);
    FindPart(*this, "LblNumberValue", LblNumberValue);
    FindPart(*this, "CbxSelector", CbxSelector);
    FindPart(*this, "LbxLanguages", LbxLanguages);
    FindPart(*this, "CbxLanguages", CbxLanguages);
    FindPart(*this, "RgpLanguages", RgpLanguages);
    FindPart(*this, "TbsLanguages", TbsLanguages);
    FindPart(*this, "MnuLanguages", MnuLanguages);
    FindPart(*this, "PopLanguages", PopLanguages);
}

void TLanguageForm::SetTranslator(TLocaleTranslator& Translator)
{
    FTranslator = &Translator;
    FSelectors = {Translator.AdoptOn(), MnuLanguages, PopLanguages, LbxLanguages,
                  CbxLanguages,         RgpLanguages, TbsLanguages};
    CbxSelector->SetItemIndex(0);
    ShowFormats();
}

void TLanguageForm::ShowFormats()
{
    const TDateTime Time = EncodeTime(15, 4, 5, 0);
    LblDateValue->SetCaption(FormatDateTime(LongDateFormat, Date()));
    LblShortDateValue->SetCaption(DateToStr(Date()));
    LblTimeValue->SetCaption(TimeToStr(Time));
    LblPriceValue->SetCaption(FloatToStrF(SamplePrice, TFloatFormat::ffCurrency, 15, CurrencyDecimals));
    LblNumberValue->SetCaption(FloatToStrF(SampleNumber, TFloatFormat::ffNumber, 15, 2));
}

void TLanguageForm::UseSelector(int Index)
{
    RemoveLanguages(FTranslator->AdoptOn());
    FTranslator->SetAdoptOn(FSelectors[static_cast<size_t>(Index)]);
    CbxSelector->SetItemIndex(Index);
}

void TLanguageForm::CbxSelectorChange(TObject*)
{
    UseSelector(CbxSelector->ItemIndex());
}

void TLanguageForm::BtnPopupClick(TObject* Sender)
{
    TControl& Button = static_cast<TControl&>(*Sender);
    const TPoint Where = Button.ClientToScreen({0, Button.Height()});
    PopLanguages->Popup(static_cast<int>(Where.x), static_cast<int>(Where.y));
}
