// The application's events as a component, so that they can be set on a form.
#pragma once

#include "framework/forms/Application.h"

// While the component lives it is the handler of the application's events that it
// has handlers for; what the application called before is put back afterwards.
// Several of them on different forms: the last one that was made is called.
class TCustomApplicationEvents : public TComponent {
    OBX_CLASS(TComponent)
public:
    explicit TCustomApplicationEvents(TComponent* Owner);
    ~TCustomApplicationEvents() override;

    TActionEvent OnActionExecute;
    TActionEvent OnActionUpdate;
    TNotifyEvent OnActivate;
    TNotifyEvent OnDeactivate;
    TExceptionEvent OnException;
    THelpEvent OnHelp;
    TNotifyEvent OnHint;
    TIdleEvent OnIdle;
    TMessageEvent OnMessage;
    TNotifyEvent OnMinimize;
    TNotifyEvent OnModalBegin;
    TNotifyEvent OnModalEnd;
    TNotifyEvent OnRestore;
    TNotifyEvent OnSettingChange;
    TShortCutEvent OnShortCut;
    TShowHintEvent OnShowHint;

    void Loaded() override;

private:
    struct TSaved;
    std::unique_ptr<TSaved> FSaved;
};

class TApplicationEvents : public TCustomApplicationEvents {
    OBX_CLASS(TCustomApplicationEvents)
public:
    using TCustomApplicationEvents::TCustomApplicationEvents;
};
