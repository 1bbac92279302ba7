#include "editors/TranslatorVerbs.h"

#include <utility>

#include "core/Frame.h"
#include "framework/design/Help.h"

namespace {

constexpr char HelpVerb[] = "Help Contents";

} // namespace

TTranslatorVerbs::TTranslatorVerbs(TFormDesigner& Designer, TComponent& Component, std::string Unit,
                                   std::string EditVerb)
    : TComponentEditor(Designer, Component), FUnit(std::move(Unit)), FEditVerb(std::move(EditVerb))
{
}

std::string TTranslatorVerbs::GetVerb(int Index) const
{
    return Index == GetVerbCount() - 1 ? HelpVerb : FEditVerb;
}

void TTranslatorVerbs::ExecuteVerb(int Index)
{
    if (Index == GetVerbCount() - 1)
        ShowHelpContents(FUnit);
    else if (dynamic_cast<TTranslatorFrame&>(Component()).ShowEditor())
        Designer().Modified();
}
