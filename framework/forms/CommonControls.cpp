#include "framework/forms/CommonControls.h"

void InitCommonControl(DWORD Classes)
{
    INITCOMMONCONTROLSEX Controls{};
    Controls.dwSize = sizeof Controls;
    Controls.dwICC = Classes;
    InitCommonControlsEx(&Controls);
}

ControlRows::TRows CommonControlRows(bool TabStop)
{
    using namespace ControlRows;
    return Joined(Base(), Drag(), Mouse(), Focus(TabStop), Buffer(), Resize(),
                  OBX_ROW(TWinControl, BorderWidth).Default(0));
}
