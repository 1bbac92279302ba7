#include "framework/design/ComponentEditor.h"

#include <map>

namespace {

std::map<const TMetaClass*, TComponentEditorMaker>& Makers()
{
    static std::map<const TMetaClass*, TComponentEditorMaker> Instance;
    return Instance;
}

} // namespace

void RegisterComponentEditor(const TMetaClass& Class, TComponentEditorMaker Maker)
{
    Makers()[&Class] = Maker;
}

void UnregisterComponentEditor(TComponentEditorMaker Maker)
{
    std::erase_if(Makers(), [Maker](const auto& Each) { return Each.second == Maker; });
}

std::unique_ptr<TComponentEditor> GetComponentEditor(TFormDesigner& Designer, TComponent& Component)
{
    for (const TMetaClass* Class = &Component.ClassType(); Class; Class = Class->ClassParent())
        if (const auto Found = Makers().find(Class); Found != Makers().end())
            return Found->second(Designer, Component);
    return std::make_unique<TComponentEditor>(Designer, Component);
}
