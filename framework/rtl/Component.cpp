#include "framework/rtl/Component.h"

#include <algorithm>

#include "framework/rtl/Filer.h"
#include "framework/rtl/SysUtils.h"

namespace {

bool IsNameCharacter(unsigned char Byte, bool First)
{
    const bool Letter =
        (Byte >= 'A' && Byte <= 'Z') || (Byte >= 'a' && Byte <= 'z') || Byte == '_' || Byte >= 0x80;
    return Letter || (!First && Byte >= '0' && Byte <= '9');
}

} // namespace

bool IsValidIdent(std::string_view Ident)
{
    for (size_t I = 0; I < Ident.size(); ++I)
        if (!IsNameCharacter(static_cast<unsigned char>(Ident[I]), I == 0))
            return false;
    return !Ident.empty();
}

const TMetaClass& TComponent::MetaClass()
{
    static const TMetaClass Class("TComponent", &TPersistent::MetaClass(), CreateComponent<TComponent>,
                                  {
                                      Prop<&TComponent::Name, &TComponent::SetName>("Name").Stored(false),
                                      Prop<&TComponent::Tag, &TComponent::SetTag>("Tag").Default(0),
                                  });
    return Class;
}

TComponent::TComponent(TComponent* Owner)
{
    if (Owner)
        Owner->InsertComponent(this);
}

TComponent::~TComponent()
{
    SetStateFlag(csDestroying, true);
    const std::vector<TComponent*> Watchers = std::move(FFreeNotifies);
    FFreeNotifies.clear();
    for (TComponent* const Watcher : Watchers) {
        std::erase(Watcher->FFreeNotifies, this);
        Watcher->Notification(this, opRemove);
    }
    DestroyComponents();
    if (FOwner)
        FOwner->RemoveComponent(this);
}

void TComponent::SetName(const std::string& Value)
{
    if (FName == Value)
        return;
    if (!Value.empty() && !IsValidIdent(Value))
        throw EComponentError(Format(SInvalidName, {Value}));
    if (FOwner) {
        FOwner->ValidateRename(this, FName, Value);
        FOwner->ForgetName(*this);
    }
    FName = Value;
    if (FOwner && !FName.empty())
        FOwner->FByName.emplace(UpperCase(FName), this);
}

TComponent* TComponent::Components(int Index) const
{
    if (Index < 0 || Index >= ComponentCount())
        throw EListError(Format(SListIndexError, {Index}));
    return FComponents[static_cast<size_t>(Index)];
}

int TComponent::ComponentIndex() const
{
    if (!FOwner)
        return -1;
    const auto& Siblings = FOwner->FComponents;
    return static_cast<int>(std::find(Siblings.begin(), Siblings.end(), this) - Siblings.begin());
}

TComponent* TComponent::FindComponent(std::string_view Name) const
{
    if (Name.empty())
        return nullptr;
    const auto Found = FByName.find(UpperCase(Name));
    return Found == FByName.end() ? nullptr : Found->second;
}

void TComponent::InsertComponent(TComponent* Component)
{
    ValidateRename(Component, "", Component->FName);
    Insert(Component);
    Component->SetStateFlag(csDesigning, HasState(csDesigning));
    Notification(Component, opInsert);
}

void TComponent::RemoveComponent(TComponent* Component)
{
    Notification(Component, opRemove);
    Remove(Component);
}

void TComponent::DestroyComponents()
{
    while (!FComponents.empty()) {
        TComponent* const Last = FComponents.back();
        // Leaving first, so that a component that asks its owner during its own
        // destruction is not told of its removal twice.
        if (HasState(csDestroying))
            Remove(Last);
        else
            RemoveComponent(Last);
        delete Last;
    }
}

void TComponent::SetDesigning(bool Value)
{
    SetStateFlag(csDesigning, Value);
    for (TComponent* const Component : FComponents)
        Component->SetDesigning(Value);
}

void TComponent::FreeNotification(TComponent* Component)
{
    if (!Component || Component == this ||
        std::find(FFreeNotifies.begin(), FFreeNotifies.end(), Component) != FFreeNotifies.end())
        return;
    FFreeNotifies.push_back(Component);
    Component->FreeNotification(this);
    SetStateFlag(csFreeNotification, true);
}

void TComponent::RemoveFreeNotification(TComponent* Component)
{
    std::erase(FFreeNotifies, Component);
    std::erase(Component->FFreeNotifies, this);
}

void TComponent::Notification(TComponent* Component, TOperation Operation)
{
    if (Operation == opRemove)
        RemoveFreeNotification(Component);
    for (size_t I = FComponents.size(); I-- > 0;)
        if (I < FComponents.size() && FComponents[I] != Component)
            FComponents[I]->Notification(Component, Operation);
}

void TComponent::Loaded()
{
    SetStateFlag(csLoading, false);
}

void TComponent::GetChildren(const std::function<void(TComponent*)>&, TComponent*) {}

void TComponent::SetLoading(bool Value)
{
    SetStateFlag(csLoading, Value);
}

void TComponent::SetStateFlag(TComponentStateFlag Flag, bool Value)
{
    if (Value)
        FComponentState.Include(Flag);
    else
        FComponentState.Exclude(Flag);
}

void TComponent::DefineProperties(TFiler& Filer)
{
    TPersistent::DefineProperties(Filer);
    if (InheritsFrom(TComponent::MetaClass()) && !GetPropInfo(*this, "Left")) {
        Filer.DefineProperty(
            "Left", [this](TReader& Reader) { DesignLeft = static_cast<int>(Reader.ReadInteger()); },
            [this](TWriter& Writer) { Writer.WriteInteger(DesignLeft); }, DesignLeft != 0);
        Filer.DefineProperty(
            "Top", [this](TReader& Reader) { DesignTop = static_cast<int>(Reader.ReadInteger()); },
            [this](TWriter& Writer) { Writer.WriteInteger(DesignTop); }, DesignTop != 0);
    }
}

void TComponent::ValidateRename(TComponent* Component, const std::string& CurName, const std::string& NewName)
{
    if (NewName.empty() || SameText(CurName, NewName))
        return;
    const TComponent* const Same = FindComponent(NewName);
    if (Same && Same != Component)
        throw EComponentError(Format(SDuplicateName, {NewName}));
}

void TComponent::Insert(TComponent* Component)
{
    FComponents.push_back(Component);
    if (!Component->FName.empty())
        FByName.emplace(UpperCase(Component->FName), Component);
    Component->FOwner = this;
}

void TComponent::Remove(TComponent* Component)
{
    ForgetName(*Component);
    if (!FComponents.empty() && FComponents.back() == Component)
        FComponents.pop_back();
    else
        std::erase(FComponents, Component);
    Component->FOwner = nullptr;
}

void TComponent::ForgetName(const TComponent& Component)
{
    const auto Known = FByName.find(UpperCase(Component.FName));
    if (Known != FByName.end() && Known->second == &Component)
        FByName.erase(Known);
}

const TMetaClass& TGenericComponent::MetaClass()
{
    static const TMetaClass Class("TGenericComponent", &TComponent::MetaClass(),
                                  CreateComponent<TGenericComponent>);
    return Class;
}

TGenericComponent::~TGenericComponent()
{
    if (auto* const Parent = dynamic_cast<TGenericComponent*>(FParent))
        std::erase(Parent->FChildren, this);
}

void TGenericComponent::SetParentComponent(TComponent* Value)
{
    if (auto* const Parent = dynamic_cast<TGenericComponent*>(FParent))
        std::erase(Parent->FChildren, this);
    FParent = Value;
    if (FParent)
        FreeNotification(FParent);
    if (auto* const Parent = dynamic_cast<TGenericComponent*>(FParent))
        Parent->FChildren.push_back(this);
}

void TGenericComponent::GetChildren(const std::function<void(TComponent*)>& Visit, TComponent*)
{
    const std::vector<TComponent*> Children = FChildren;
    for (TComponent* const Child : Children)
        Visit(Child);
}

void TGenericComponent::Notification(TComponent* Component, TOperation Operation)
{
    TComponent::Notification(Component, Operation);
    if (Operation != opRemove)
        return;
    if (Component == FParent)
        FParent = nullptr;
    std::erase(FChildren, Component);
}

void TGenericComponent::AdoptChild(TComponent* Child)
{
    FreeNotification(Child);
    FChildren.push_back(Child);
}
