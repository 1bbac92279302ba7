// Fields for formatted text, and the control for small animations.
#pragma once

#include "framework/forms/CommonControls.h"
#include "framework/forms/Edits.h"

// Shows its lines as plain text; formats in what is loaded are not interpreted.
class TCustomRichEdit : public TCustomMemo {
    OBX_CLASS(TCustomMemo)
public:
    explicit TCustomRichEdit(TComponent* Owner) : TCustomMemo(Owner) {}

    // Published by rich edits.
    OBX_PROPERTY(bool, HideScrollBars, true)
    OBX_PROPERTY(bool, PlainText, false)
    OBX_PROPERTY(int, Zoom, 0)
public:
    TNotifyEvent OnSelectionChange;
};

class TRichEdit : public TCustomRichEdit {
    OBX_CLASS(TCustomRichEdit)
public:
    explicit TRichEdit(TComponent* Owner) : TCustomRichEdit(Owner) {}
};

OBX_ENUM(TCommonAVI, aviNone, aviFindFolder, aviFindFile, aviFindComputer, aviCopyFiles, aviCopyFile,
         aviRecycleFile, aviEmptyRecycle, aviDeleteFile)

// Keeps its place and settings; nothing is played.
class TAnimate : public TWinControl {
    OBX_CLASS(TWinControl)
public:
    explicit TAnimate(TComponent* Owner);

    // Published.
    OBX_PROPERTY(bool, Active, false)
    OBX_PROPERTY(bool, Center, true)
    OBX_PROPERTY(TCommonAVI, CommonAVI, aviNone)
    OBX_PROPERTY(std::string, FileName, {})
    OBX_PROPERTY(int, Repetitions, 0)
    OBX_PROPERTY(int16_t, StartFrame, 1)
    OBX_PROPERTY(int16_t, StopFrame, 0)
    OBX_PROPERTY(bool, Timers, false)
    OBX_PROPERTY(bool, Transparent, true)
public:
    TNotifyEvent OnClose;
    TNotifyEvent OnOpen;
    TNotifyEvent OnStart;
    TNotifyEvent OnStop;
};

void RegisterRichEditClasses();
