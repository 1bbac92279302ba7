#include "demo/PlanningForm.h"

#include "DemoTexts.h"
#include "Qlt/Qlt.h"
#include "demo/BerthsForm.h"
#include "demo/CrewForm.h"
#include "demo/Language.h"
#include "framework/forms/FormParts.h"
#include "framework/forms/Menus.h"

const TMetaClass& TPlanningForm::MetaClass()
{
    static const TMetaClass Class("TPlanningForm", &TForm::MetaClass(), CreateComponent<TPlanningForm>, {},
                                  {Published<&TPlanningForm::FormCreate>("FormCreate"),
                                   Published<&TPlanningForm::ItemBerthsClick>("ItemBerthsClick"),
                                   Published<&TPlanningForm::ItemCrewClick>("ItemCrewClick"),
                                   Published<&TPlanningForm::ItemExitClick>("ItemExitClick"),
                                   Published<&TPlanningForm::ItemCascadeClick>("ItemCascadeClick"),
                                   Published<&TPlanningForm::ItemTileClick>("ItemTileClick"),
                                   Published<&TPlanningForm::ItemArrangeClick>("ItemArrangeClick")});
    return Class;
}

void TPlanningForm::Loaded()
{
    inherited::Loaded();
    FindPart(*this, "Locales", Locales);
}

void TPlanningForm::FormCreate(TObject*)
{
    AddSystemLocales(*Locales);
    Locales->OnTranslated = {this, &TPlanningForm::LocaleChanged};
    LocaleChanged(Locales);
}

void TPlanningForm::LocaleChanged(TObject*)
{
    Application->SetTitle(SHarbourPlanning);
    Application->BiDiMode = BiDiMode();
}

void TPlanningForm::ItemBerthsClick(TObject*)
{
    BerthsForm->Show();
}

void TPlanningForm::ItemCrewClick(TObject*)
{
    CrewForm->Show();
}

void TPlanningForm::ItemExitClick(TObject*)
{
    Close();
}

void TPlanningForm::ItemCascadeClick(TObject*)
{
    Cascade();
}

void TPlanningForm::ItemTileClick(TObject*)
{
    Tile();
}

void TPlanningForm::ItemArrangeClick(TObject*)
{
    ArrangeIcons();
}
