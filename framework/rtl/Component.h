// Components: named objects that own other components and live on forms.
#pragma once

#include <functional>
#include <string>
#include <unordered_map>
#include <vector>

#include "framework/rtl/Persistent.h"

OBX_ENUM(TComponentStateFlag, csLoading, csReading, csWriting, csDestroying, csDesigning, csAncestor,
         csUpdating, csFixups, csFreeNotification, csInline, csDesignInstance)
OBX_SET(TComponentState, TComponentStateFlag)

OBX_ENUM(TOperation, opInsert, opRemove)

// Created with new and an owner, which deletes it; a component without an owner
// belongs to whoever made it. Destroying a component destroys what it owns, last
// one first, and tells the components that asked to be told.
class TComponent : public TPersistent {
    OBX_CLASS(TPersistent)
public:
    explicit TComponent(TComponent* Owner);
    ~TComponent() override;

    // Published. Unique among the owner's components; letters, digits and "_",
    // not beginning with a digit (letters of any language). EComponentError
    // otherwise, and when the owner has a component of that name.
    const std::string& Name() const { return FName; }
    virtual void SetName(const std::string& Value);

    // Published. Free for the application.
    int Tag() const { return FTag; }
    void SetTag(int Value) { FTag = Value; }

    TComponent* Owner() const { return FOwner; }
    TPersistent* GetOwner() const override { return FOwner; }
    int ComponentCount() const { return static_cast<int>(FComponents.size()); }
    TComponent* Components(int Index) const;
    int ComponentIndex() const;
    // By name, letter case ignored; null if none.
    TComponent* FindComponent(std::string_view Name) const;
    void InsertComponent(TComponent* Component);
    void RemoveComponent(TComponent* Component);
    void DestroyComponents();

    TComponentState ComponentState() const { return FComponentState; }
    bool HasState(TComponentStateFlag Flag) const { return FComponentState.Contains(Flag); }

    // Marks this component and those it owns as edited in the designer.
    void SetDesigning(bool Value);

    // Asks for Notification(opRemove) when Component is destroyed.
    void FreeNotification(TComponent* Component);
    void RemoveFreeNotification(TComponent* Component);

    // Called when a component is inserted into, or removed from, this one's owner
    // tree, and for components watched through FreeNotification.
    virtual void Notification(TComponent* Component, TOperation Operation);

    // Called once after all of a form has been read.
    virtual void Loaded();

    // The parent in the form file (for controls, their container); null means the
    // root. Only a component with HasParent is written inside its parent.
    virtual TComponent* GetParentComponent() const { return nullptr; }
    virtual bool HasParent() const { return false; }
    virtual void SetParentComponent(TComponent*) {}
    // The components that a form file nests in this one, in file order. Root is
    // the form being written.
    virtual void GetChildren(const std::function<void(TComponent*)>& Visit, TComponent* Root);
    // The position of Child among those of its kind, as form files number them.
    virtual void SetChildOrder(TComponent*, int) {}
    // The component that owns what is streamed as this one's children, when it
    // is not the root (frames).
    virtual TComponent* GetChildOwner() { return nullptr; }

    // A part of its owner that form files write as a sub-object (the label of a
    // labelled edit), not as a reference to a component.
    bool IsSubComponent() const { return FIsSubComponent; }
    void SetSubComponent(bool Value) { FIsSubComponent = Value; }

    // Whether a change of this component's texts changes other components: an
    // action's controls show its caption.
    virtual bool ChangesOthers() const { return false; }

    // Called around reading; for the readers of form files.
    virtual void SetLoading(bool Value);
    void SetStateFlag(TComponentStateFlag Flag, bool Value);

    // Where the designer shows a component that is no control, in pixels; written
    // as the stream properties Left and Top.
    int DesignLeft = 0;
    int DesignTop = 0;
    void DefineProperties(TFiler& Filer) override;

protected:
    // Before Component of this owner takes NewName.
    virtual void ValidateRename(TComponent* Component, const std::string& CurName,
                                const std::string& NewName);

private:
    void Insert(TComponent* Component);
    void Remove(TComponent* Component);
    void ForgetName(const TComponent& Component);

    TComponent* FOwner = nullptr;
    std::string FName;
    int FTag = 0;
    std::vector<TComponent*> FComponents;
    std::unordered_map<std::string, TComponent*> FByName; // by upper-case name
    std::vector<TComponent*> FFreeNotifies;
    TComponentState FComponentState;
    bool FIsSubComponent = false;
};

bool IsValidIdent(std::string_view Ident);

// The stand-in for a component whose class the program does not have.
class TGenericComponent : public TComponent {
    OBX_CLASS(TComponent)
public:
    explicit TGenericComponent(TComponent* Owner) : TComponent(Owner) {}
    ~TGenericComponent() override;

    TComponent* GetParentComponent() const override { return FParent; }
    bool HasParent() const override { return FParent != nullptr; }
    void SetParentComponent(TComponent* Value) override;
    void GetChildren(const std::function<void(TComponent*)>& Visit, TComponent* Root) override;
    TComponent* GetChildOwner() override { return FOwnsChildren ? this : nullptr; }
    void Notification(TComponent* Component, TOperation Operation) override;

    // An inline frame owns the components inside it.
    void SetOwnsChildren(bool Value) { FOwnsChildren = Value; }
    // Takes a component that does not know parents of its own (a data-aware
    // field inside its data set) as a child.
    void AdoptChild(TComponent* Child);

private:
    TComponent* FParent = nullptr;
    std::vector<TComponent*> FChildren;
    bool FOwnsChildren = false;
};
