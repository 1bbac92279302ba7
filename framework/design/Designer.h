// The form that is being designed, as the editors of its properties and components
// see it.
#pragma once

#include <functional>
#include <string>

#include "framework/rtl/Component.h"

class TFormDesigner {
public:
    virtual ~TFormDesigner() = default;

    // The form; it owns the components that are designed.
    virtual TComponent& Root() = 0;

    // Tells the environment that the form was changed and has to be saved.
    virtual void Modified() = 0;

    // The component that a name stands for, and the names of all components of a
    // class, those of other forms in reach included ("DataModule1.Source").
    virtual TComponent* GetComponent(const std::string& Name) = 0;
    virtual std::string GetComponentName(const TComponent* Component) = 0;
    virtual void GetComponentNames(const TMetaClass& Class,
                                   const std::function<void(const std::string&)>& Visit) = 0;

    // Shows a component in the inspector, alone.
    virtual void SelectComponent(TComponent* Component) = 0;
};
