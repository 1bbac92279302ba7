#include "framework/forms/AppEvents.h"

namespace {

// Calls Visit with each event as a member of the component and of the application.
template<class TVisit>
void ForEachEvent(TVisit Visit)
{
    using C = TCustomApplicationEvents;
    using A = TApplication;
    Visit(&C::OnActionExecute, &A::OnActionExecute);
    Visit(&C::OnActionUpdate, &A::OnActionUpdate);
    Visit(&C::OnActivate, &A::OnActivate);
    Visit(&C::OnDeactivate, &A::OnDeactivate);
    Visit(&C::OnException, &A::OnException);
    Visit(&C::OnHelp, &A::OnHelp);
    Visit(&C::OnHint, &A::OnHint);
    Visit(&C::OnIdle, &A::OnIdle);
    Visit(&C::OnMessage, &A::OnMessage);
    Visit(&C::OnMinimize, &A::OnMinimize);
    Visit(&C::OnModalBegin, &A::OnModalBegin);
    Visit(&C::OnModalEnd, &A::OnModalEnd);
    Visit(&C::OnRestore, &A::OnRestore);
    Visit(&C::OnSettingChange, &A::OnSettingChange);
    Visit(&C::OnShortCut, &A::OnShortCut);
    Visit(&C::OnShowHint, &A::OnShowHint);
}

} // namespace

// What the application's events were, in the order of ForEachEvent.
struct TCustomApplicationEvents::TSaved {
    std::vector<TMethod> Before;
};

const TMetaClass& TCustomApplicationEvents::MetaClass()
{
    static const TMetaClass Class("TCustomApplicationEvents", &TComponent::MetaClass(), nullptr);
    return Class;
}

const TMetaClass& TApplicationEvents::MetaClass()
{
    using T = TApplicationEvents;
    static const TMetaClass Class("TApplicationEvents", &TCustomApplicationEvents::MetaClass(),
                                  CreateComponent<T>,
                                  {
                                      Prop<&T::OnActionExecute>("OnActionExecute"),
                                      Prop<&T::OnActionUpdate>("OnActionUpdate"),
                                      Prop<&T::OnActivate>("OnActivate"),
                                      Prop<&T::OnDeactivate>("OnDeactivate"),
                                      Prop<&T::OnException>("OnException"),
                                      Prop<&T::OnHelp>("OnHelp"),
                                      Prop<&T::OnHint>("OnHint"),
                                      Prop<&T::OnIdle>("OnIdle"),
                                      Prop<&T::OnMessage>("OnMessage"),
                                      Prop<&T::OnMinimize>("OnMinimize"),
                                      Prop<&T::OnModalBegin>("OnModalBegin"),
                                      Prop<&T::OnModalEnd>("OnModalEnd"),
                                      Prop<&T::OnRestore>("OnRestore"),
                                      Prop<&T::OnSettingChange>("OnSettingChange"),
                                      Prop<&T::OnShortCut>("OnShortCut"),
                                      Prop<&T::OnShowHint>("OnShowHint"),
                                  });
    return Class;
}

TCustomApplicationEvents::TCustomApplicationEvents(TComponent* Owner) : TComponent(Owner) {}

TCustomApplicationEvents::~TCustomApplicationEvents()
{
    if (!FSaved || !Application)
        return;
    size_t Index = 0;
    ForEachEvent([&](auto Own, auto Applications) {
        auto& Event = Application->*Applications;
        const TMethod& Before = FSaved->Before[Index++];
        // An event that has been taken over since is not ours to put back.
        if (this->*Own && Event == this->*Own)
            Event = std::remove_cvref_t<decltype(Event)>(Before);
    });
}

void TCustomApplicationEvents::Loaded()
{
    TComponent::Loaded();
    if (!Application || FSaved || HasState(csDesigning))
        return;
    FSaved = std::make_unique<TSaved>();
    ForEachEvent([&](auto Own, auto Applications) {
        auto& Event = Application->*Applications;
        FSaved->Before.push_back(Event.Method());
        if (this->*Own)
            Event = this->*Own;
    });
}
