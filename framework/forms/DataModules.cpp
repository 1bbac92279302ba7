#include "framework/forms/DataModules.h"

#include "framework/forms/FormResources.h"
#include "framework/forms/Screen.h"
#include "framework/rtl/Filer.h"

namespace {

struct TDefinedNumber {
    const char* Name;
    LONG* Value;
    bool* Has;
};

} // namespace

const TMetaClass& TDataModule::MetaClass()
{
    static const TMetaClass Class("TDataModule", &TComponent::MetaClass(), CreateComponent<TDataModule>,
                                  {
                                      OBX_ROW(TDataModule, OldCreateOrder),
                                      Prop<&TDataModule::OnCreate>("OnCreate"),
                                      Prop<&TDataModule::OnDestroy>("OnDestroy"),
                                  });
    return Class;
}

TDataModule::TDataModule(TComponent* Owner) : TComponent(Owner)
{
    if (Screen)
        Screen->AddDataModule(this);
}

TDataModule::~TDataModule()
{
    SetStateFlag(csDestroying, true);
    if (OnDestroy)
        OnDestroy(this);
    DestroyComponents();
    if (Screen)
        Screen->RemoveDataModule(this);
}

void TDataModule::AfterConstruction()
{
    if (FConstructed)
        return;
    FConstructed = true;
    InitInheritedComponent(*this, TDataModule::MetaClass());
    if (OnCreate)
        OnCreate(this);
}

void TDataModule::DefineProperties(TFiler& Filer)
{
    TPersistent::DefineProperties(Filer);
    const TDefinedNumber Numbers[] = {{"Left", &FDesignOffset.x, &FHasOffset[0]},
                                      {"Top", &FDesignOffset.y, &FHasOffset[1]},
                                      {"HorizontalOffset", &FDesignOffset.x, &FHasOffset[0]},
                                      {"VerticalOffset", &FDesignOffset.y, &FHasOffset[1]},
                                      {"Height", &FDesignSize.y, &FHasSize[0]},
                                      {"Width", &FDesignSize.x, &FHasSize[1]}};
    for (const TDefinedNumber& Number : Numbers) {
        const std::string_view Name = Number.Name;
        const bool Writes = Name != "Left" && Name != "Top";
        Filer.DefineProperty(
            Number.Name,
            [Number](TReader& Reader) {
                *Number.Value = static_cast<LONG>(Reader.ReadInteger());
                *Number.Has = true;
            },
            [Number](TWriter& Writer) { Writer.WriteInteger(*Number.Value); }, Writes && *Number.Has);
    }
}
