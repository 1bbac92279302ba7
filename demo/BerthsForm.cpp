#include "demo/BerthsForm.h"

#include "framework/forms/FormParts.h"
#include "framework/forms/ListViews.h"

TBerthsForm* BerthsForm = nullptr;

namespace {

struct TCall {
    const char* Berth;
    const char* Vessel;
    const char* Arrival;
    const char* Departure;
};

constexpr TCall Calls[] = {{"1", "Grisslan", "05:50", "06:30"},
                           {"2", "Tärnan", "07:10", "07:45"},
                           {"4", "Lasse", "13:20", "15:30"},
                           {"2", "Ejdern", "20:15", "22:40"}};

} // namespace

const TMetaClass& TBerthsForm::MetaClass()
{
    static const TMetaClass Class("TBerthsForm", &TForm::MetaClass(), CreateComponent<TBerthsForm>, {},
                                  {Published<&TBerthsForm::FormCreate>("FormCreate")});
    return Class;
}

void TBerthsForm::Loaded()
{
    inherited::Loaded();
    FindPart(*this, "LvwBerths", LvwBerths);
}

void TBerthsForm::FormCreate(TObject*)
{
    for (const TCall& Call : Calls) {
        TListItem* const Item = LvwBerths->Items()->Add();
        Item->SetCaption(Call.Berth);
        for (const char* const Text : {Call.Vessel, Call.Arrival, Call.Departure})
            Item->SubItems()->Add(Text);
    }
}
