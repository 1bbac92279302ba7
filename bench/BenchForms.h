// Forms to translate: many components with about thirty published properties each.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "Qft/Qft.h"

class TBenchButton : public TComponent {
    OBX_CLASS(TComponent)
public:
    using TComponent::TComponent;
    OBX_PROPERTY(int, Left, 0)
    OBX_PROPERTY(int, Top, 0)
    OBX_PROPERTY(int, Width, 75)
    OBX_PROPERTY(int, Height, 25)
    OBX_PROPERTY(int, HelpContext, 0)
    OBX_PROPERTY(int, TabOrder, 0)
    OBX_PROPERTY(int, ModalResult, 0)
    OBX_PROPERTY(int, ImageIndex, -1)
    OBX_PROPERTY(int, Margin, -1)
    OBX_PROPERTY(int, Spacing, 4)
    OBX_PROPERTY(bool, Enabled, true)
    OBX_PROPERTY(bool, Visible, true)
    OBX_PROPERTY(bool, TabStop, true)
    OBX_PROPERTY(bool, Cancel, false)
    OBX_PROPERTY(bool, Default, false)
    OBX_PROPERTY(bool, WordWrap, false)
    OBX_PROPERTY(bool, ShowHint, false)
    OBX_PROPERTY(bool, ParentFont, true)
    OBX_PROPERTY(bool, ParentColor, true)
    OBX_PROPERTY(bool, ParentShowHint, true)
    OBX_PROPERTY(std::string, Caption, "")
    OBX_PROPERTY(std::string, Hint, "")
    OBX_PROPERTY(std::string, HelpKeyword, "")
    OBX_PROPERTY(std::string, FontName, "Sans")
    OBX_PROPERTY(int, FontSize, 8)
    OBX_PROPERTY(double, Factor, 1)
    OBX_PROPERTY(TNotifyEvent, OnClick, {})
};

inline const TMetaClass& TBenchButton::MetaClass()
{
#define ROW(Name) OBX_ROW(TBenchButton, Name)
    static const TMetaClass Class("TBenchButton", &TComponent::MetaClass(), nullptr,
                                  {ROW(Left),     ROW(Top),         ROW(Width),       ROW(Height),
                                   ROW(TabOrder), ROW(ModalResult), ROW(ImageIndex),  ROW(HelpContext),
                                   ROW(Margin),   ROW(Spacing),     ROW(Enabled),     ROW(Visible),
                                   ROW(TabStop),  ROW(Cancel),      ROW(Default),     ROW(WordWrap),
                                   ROW(ShowHint), ROW(ParentFont),  ROW(ParentColor), ROW(ParentShowHint),
                                   ROW(Caption),  ROW(Hint),        ROW(HelpKeyword), ROW(FontName),
                                   ROW(FontSize), ROW(Factor)});
#undef ROW
    return Class;
}

inline constexpr int BenchForms = 100;
inline constexpr int BenchComponents = 200;

// BenchForms forms of BenchComponents components, and Translations lines over all
// of them: captions first, then hints, then help keywords.
class TBenchApplication {
public:
    explicit TBenchApplication(int Translations)
    {
        for (int I = 0; I < BenchForms; ++I) {
            Forms.push_back(std::make_unique<TBenchButton>(nullptr));
            Forms.back()->SetName("Form" + std::to_string(I));
            Translators.push_back(new TFormTranslator(Forms.back().get()));
            FillForm(*Forms.back());
        }
        const int PerForm = Translations / BenchForms;
        for (TFormTranslator* const Each : Translators) {
            TSortList List;
            for (int I = 0; I < PerForm; ++I)
                List.Add(Key(I) + "=" + Value(I));
            Each->SetTranslations(&List);
        }
    }

    static std::string Name(int Component) { return "Button" + std::to_string(Component + 1); }
    static std::string Key(int Line)
    {
        constexpr const char* Props[] = {".Caption", ".Hint", ".HelpKeyword"};
        return Name(Line % BenchComponents) + Props[Line / BenchComponents];
    }
    static std::string Value(int Line) { return "'\xC3\x96vers\xC3\xA4ttning " + std::to_string(Line) + "'"; }

    std::vector<std::unique_ptr<TBenchButton>> Forms;
    std::vector<TFormTranslator*> Translators;

private:
    static void FillForm(TBenchButton& Form)
    {
        for (int I = 0; I < BenchComponents; ++I) {
            auto* const Button = new TBenchButton(&Form);
            Button->SetName(Name(I));
            Button->SetCaption("Translation " + std::to_string(I));
            Button->SetHint("What this does, number " + std::to_string(I));
            Button->SetHelpKeyword("Keyword" + std::to_string(I));
        }
    }
};
