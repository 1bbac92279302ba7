// Controls for tests of the base classes: one of each kind.
#pragma once

#include <string>
#include <vector>

#include "framework/forms/Forms.h"

// Draws nothing; remembers what it was asked.
class TSampleGraphic : public TGraphicControl {
    OBX_CLASS(TGraphicControl)
public:
    explicit TSampleGraphic(TComponent* Owner) : TGraphicControl(Owner) {}
    int Paints = 0;

protected:
    void Paint() override { ++Paints; }
};

// A container.
class TSampleBox : public TCustomControl {
    OBX_CLASS(TCustomControl)
public:
    explicit TSampleBox(TComponent* Owner) : TCustomControl(Owner)
    {
        FControlStyle.Include(csAcceptsControls);
    }
    using TWinControl::RecreateWnd;
};

// The system's edit control.
class TSampleEdit : public TWinControl {
    OBX_CLASS(TWinControl)
public:
    explicit TSampleEdit(TComponent* Owner) : TWinControl(Owner) { SetTabStop(true); }
    int Changes = 0;

protected:
    void CreateParams(TCreateParams& Params) override
    {
        inherited::CreateParams(Params);
        CreateSubClass(Params, "EDIT");
        Params.ExStyle |= WS_EX_CLIENTEDGE;
    }
    void Dispatch(TMessage& Message) override
    {
        if (Message.Msg == CN_COMMAND && Message.Code() == EN_CHANGE)
            ++Changes;
        inherited::Dispatch(Message);
    }
};

inline const TMetaClass& TSampleGraphic::MetaClass()
{
    static const TMetaClass Class("TSampleGraphic", &inherited::MetaClass(), CreateComponent<TSampleGraphic>);
    return Class;
}

inline const TMetaClass& TSampleBox::MetaClass()
{
    static const TMetaClass Class("TSampleBox", &inherited::MetaClass(), CreateComponent<TSampleBox>);
    return Class;
}

inline const TMetaClass& TSampleEdit::MetaClass()
{
    static const TMetaClass Class("TSampleEdit", &inherited::MetaClass(), CreateComponent<TSampleEdit>);
    return Class;
}

// Makes a control inside Parent, owned by it.
template<class T>
T* Put(TWinControl* Parent, const std::string& Name, int Left = 0, int Top = 0, int Width = 50,
       int Height = 20)
{
    auto* const Result = new T(Parent);
    Result->SetName(Name);
    Result->SetBounds(Left, Top, Width, Height);
    Result->SetParent(Parent);
    return Result;
}

// Takes any event and writes it down.
class TEventLog : public TObject {
public:
    std::vector<std::string> Lines;

    void Notify(TObject* Sender) { Add(Sender, "notified"); }
    void Down(TObject* Sender, TMouseButton Button, TShiftState, int X, int Y)
    {
        Add(Sender, "down " + std::to_string(Button) + At(X, Y));
    }
    void Up(TObject* Sender, TMouseButton Button, TShiftState, int X, int Y)
    {
        Add(Sender, "up " + std::to_string(Button) + At(X, Y));
    }
    void Click(TObject* Sender) { Add(Sender, "click"); }
    void Enter(TObject* Sender) { Add(Sender, "enter"); }
    void Exit(TObject* Sender) { Add(Sender, "exit"); }
    void Key(TObject* Sender, uint16_t& Value, TShiftState) { Add(Sender, "key " + std::to_string(Value)); }
    void Press(TObject* Sender, char& Value)
    {
        Add(Sender, std::string("press ") + Value);
        if (Value == Swallowed)
            Value = 0;
    }
    char Swallowed = 0;
    std::vector<std::string> Take() { return std::exchange(Lines, {}); }

private:
    static std::string At(int X, int Y) { return " " + std::to_string(X) + "," + std::to_string(Y); }
    void Add(TObject* Sender, const std::string& Text)
    {
        const auto* const Component = dynamic_cast<TComponent*>(Sender);
        Lines.push_back((Component ? Component->Name() : std::string("?")) + " " + Text);
    }
};

using TTexts = std::vector<std::string>;
