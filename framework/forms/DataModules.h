// Data modules: containers of components that are not seen.
#pragma once

#include "framework/forms/Types.h"
#include "framework/rtl/Component.h"

class TDataModule : public TComponent {
    OBX_CLASS(TComponent)
public:
    explicit TDataModule(TComponent* Owner);
    ~TDataModule() override;

    // Reads the form file of the class, then calls OnCreate; once.
    virtual void AfterConstruction();

    // The size and place of the designer's window, pixels; stream properties.
    TPoint DesignOffset() const { return FDesignOffset; }
    TPoint DesignSize() const { return FDesignSize; }
    void SetDesignOffset(const TPoint& Value) { FDesignOffset = Value; }
    void SetDesignSize(const TPoint& Value) { FDesignSize = Value; }

    // Published.
    bool OldCreateOrder() const { return FOldCreateOrder; }
    void SetOldCreateOrder(bool Value) { FOldCreateOrder = Value; }
    TNotifyEvent OnCreate;
    TNotifyEvent OnDestroy;

    void DefineProperties(TFiler& Filer) override;

private:
    TPoint FDesignOffset{};
    TPoint FDesignSize{};
    bool FHasOffset[2] = {};
    bool FHasSize[2] = {};
    bool FOldCreateOrder = false;
    bool FConstructed = false;
};
