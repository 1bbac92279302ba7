#include "framework/forms/FormRoots.h"

#include <algorithm>

#include "framework/forms/DataModules.h"
#include "framework/forms/Form.h"
#include "framework/forms/Frames.h"

namespace {

bool HasAny(const TFormObject& Source, std::initializer_list<const char*> Names)
{
    return std::any_of(Names.begin(), Names.end(),
                       [&](const char* Name) { return Source.Find(Name) != nullptr; });
}

std::unique_ptr<TComponent> MakeRoot(const TFormObject& Source)
{
    if (const TMetaClass* const Class = GetClass(Source.ClassName()); Class && Class->CanCreate())
        return std::unique_ptr<TComponent>(static_cast<TComponent*>(Class->Create(nullptr)));
    const bool Visual =
        HasAny(Source, {"Caption", "ClientHeight", "ClientWidth", "BorderStyle", "Color", "Font.Name",
                        "Font.Height", "TextHeight", "Position", "FormStyle", "Align", "TabOrder"});
    if (!Visual && HasAny(Source, {"OldCreateOrder", "HorizontalOffset", "VerticalOffset"}))
        return std::make_unique<TDataModule>(nullptr);
    if (HasAny(Source, {"TabOrder", "DesignLeft"}) && !HasAny(Source, {"Caption", "BorderStyle", "Position"}))
        return std::make_unique<TFrame>(nullptr);
    return std::make_unique<TForm>(nullptr);
}

} // namespace

std::unique_ptr<TComponent> MakeDesignedRoot(const TFormObject& Source)
{
    std::unique_ptr<TComponent> Root = MakeRoot(Source);
    Root->SetDesigning(true);
    return Root;
}
