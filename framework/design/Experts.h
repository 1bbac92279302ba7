// Experts: what packages add to the environment's menu.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "framework/rtl/TypInfo.h"

// esStandard: an entry in the menu. The others are known to environments that have
// places for them.
OBX_ENUM(TExpertStyle, esStandard, esForm, esProject, esAddIn)
OBX_ENUM(TExpertStateFlag, esEnabled, esChecked)
OBX_SET(TExpertState, TExpertStateFlag)

// The environment's interfaces.
class TInterface {
public:
    TInterface() = default;
    virtual ~TInterface() = default;
    TInterface(const TInterface&) = delete;
    TInterface& operator=(const TInterface&) = delete;
};

class TIExpert : public TInterface {
public:
    virtual TExpertStyle GetStyle() = 0;
    // Unique in the world: "Company.Product".
    virtual std::string GetIDString() = 0;
    virtual std::string GetName() = 0;
    virtual std::string GetAuthor() = 0;
    virtual std::string GetComment() = 0;
    // Where form and project experts stand; empty for others.
    virtual std::string GetPage() = 0;
    // A picture handle; 0 for none.
    virtual intptr_t GetGlyph() = 0;
    virtual TExpertState GetState() = 0;
    virtual std::string GetMenuText() = 0;
    // The user has chosen it.
    virtual void Execute() = 0;
};

// The environment owns the expert from now on. One with the identifier of another
// takes its place.
void RegisterLibraryExpert(std::unique_ptr<TIExpert> Expert);
// Destroys it; false when it is not registered.
bool UnregisterLibraryExpert(const TIExpert* Expert);

// In the order of their registration.
std::vector<TIExpert*> LibraryExperts();
