#include "framework/forms/BasicAction.h"

#include <algorithm>

const TMetaClass& TBasicActionLink::MetaClass()
{
    static const TMetaClass Class("TBasicActionLink", &TObject::MetaClass(), nullptr);
    return Class;
}

// Descendants call AssignClient themselves: virtual calls do not reach them here.
TBasicActionLink::TBasicActionLink(TObject*) {}

TBasicActionLink::~TBasicActionLink()
{
    if (FAction)
        FAction->UnRegisterChanges(this);
}

void TBasicActionLink::SetAction(TBasicAction* Value)
{
    if (Value == FAction)
        return;
    if (FAction)
        FAction->UnRegisterChanges(this);
    FAction = Value;
    if (Value)
        Value->RegisterChanges(this);
}

bool TBasicActionLink::Execute(TComponent* Component)
{
    if (!FAction)
        return false;
    FAction->SetActionComponent(Component);
    const bool Result = FAction->Execute();
    // The handler may have destroyed the action, which clears FAction.
    if (FAction)
        FAction->SetActionComponent(nullptr);
    return Result;
}

bool TBasicActionLink::Update()
{
    return FAction && FAction->Update();
}

void TBasicActionLink::Change()
{
    if (OnChange)
        OnChange(FAction);
}

const TMetaClass& TBasicAction::MetaClass()
{
    static const TMetaClass Class("TBasicAction", &TComponent::MetaClass(), nullptr);
    return Class;
}

TBasicAction::TBasicAction(TComponent* Owner) : TComponent(Owner) {}

TBasicAction::~TBasicAction()
{
    if (FActionComponent)
        FActionComponent->RemoveFreeNotification(this);
    while (!FClients.empty())
        UnRegisterChanges(FClients.back());
}

bool TBasicAction::Execute()
{
    if (!FOnExecute)
        return false;
    FOnExecute(this);
    return true;
}

bool TBasicAction::Update()
{
    if (!OnUpdate)
        return false;
    OnUpdate(this);
    return true;
}

void TBasicAction::RegisterChanges(TBasicActionLink* Link)
{
    FClients.push_back(Link);
    Link->FAction = this;
}

void TBasicAction::UnRegisterChanges(TBasicActionLink* Link)
{
    const auto Found = std::find(FClients.begin(), FClients.end(), Link);
    if (Found == FClients.end())
        return;
    FClients.erase(Found);
    Link->FAction = nullptr;
}

void TBasicAction::SetActionComponent(TComponent* Value)
{
    if (FActionComponent)
        FActionComponent->RemoveFreeNotification(this);
    FActionComponent = Value;
    if (Value)
        Value->FreeNotification(this);
}

void TBasicAction::SetOnExecute(const TNotifyEvent& Value)
{
    if (FOnExecute == Value)
        return;
    for (TBasicActionLink* const Link : FClients)
        Link->SetOnExecute(Value);
    FOnExecute = Value;
    Change();
}

void TBasicAction::Change()
{
    if (OnChange)
        OnChange(this);
    // A client may leave while it is told.
    const std::vector<TBasicActionLink*> Clients = FClients;
    for (TBasicActionLink* const Link : Clients)
        if (std::find(FClients.begin(), FClients.end(), Link) != FClients.end())
            Link->Change();
}

void TBasicAction::Notification(TComponent* Component, TOperation Operation)
{
    inherited::Notification(Component, Operation);
    if (Operation == opRemove && Component == FActionComponent)
        FActionComponent = nullptr;
}
