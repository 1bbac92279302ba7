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

// Of a root that shows nothing. Of the forms only descendants have a size and no place.
bool IsDataModule(const TFormObject& Source)
{
    return HasAny(Source, {"OldCreateOrder", "HorizontalOffset", "VerticalOffset"}) ||
           (Source.Kind() == TFormObjectKind::Object && Source.Find("Height") &&
            !HasAny(Source, {"Left", "Top"}));
}

std::unique_ptr<TComponent> MakeRoot(const TFormObject& Source)
{
    if (const TMetaClass* const Class = GetClass(Source.ClassName()); Class && Class->CanCreate())
        return std::unique_ptr<TComponent>(static_cast<TComponent*>(Class->Create(nullptr)));
    const bool Visual =
        HasAny(Source, {"Caption", "ClientHeight", "ClientWidth", "BorderStyle", "Color", "Font.Name",
                        "Font.Height", "TextHeight", "Position", "FormStyle", "Align", "TabOrder"});
    if (!Visual && IsDataModule(Source))
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
