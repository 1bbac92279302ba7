// A form that is being designed: its file, its components in the designer's state,
// what is selected, and what can be undone. No user interface.
#pragma once

#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "framework/design/Designer.h"
#include "framework/forms/Types.h"
#include "framework/streaming/LoadedForm.h"

// Components live until the next Undo or Redo, which makes all of them anew;
// BeforeReload and AfterReload tell of it, and the selection is kept by name.
class TFormModel : public TFormDesigner {
public:
    // Opens a form file, text or binary, with stand-ins for unknown classes.
    // Errors: EFormFileError with the place, EFOpenError, EReadError.
    explicit TFormModel(const std::string& FileName);
    // A form that is not in a file yet: Save makes the file.
    TFormModel(const std::string& FileName, TFormDocument Document);
    ~TFormModel() override;
    TFormModel(const TFormModel&) = delete;
    TFormModel& operator=(const TFormModel&) = delete;

    const std::string& FileName() const { return FFileName; }
    bool IsModified() const { return FPresent != FSaved; }

    // The form as it is now, as a tree and as its file.
    const TFormDocument& Document() const { return FPresent->Document; }
    const std::string& Bytes() const { return FPresent->Bytes; }
    // Writes the file with nothing but the changes, and the translations files of its
    // translators. Throws EFCreateError, EWriteError; the form stays modified then.
    void Save();

    TComponent& Root() override { return FForm->Root(); }
    // What changed since the last call becomes one step that can be undone.
    void Modified() override;
    // Names of this form's components; those inside frames as "Frame1.Edit1".
    // References to other forms stay as the file has them.
    TComponent* GetComponent(const std::string& Name) override;
    std::string GetComponentName(const TComponent* Component) override;
    void GetComponentNames(const TMetaClass& Class,
                           const std::function<void(const std::string&)>& Visit) override;

    // The root when nothing else is selected. Reports only real changes.
    const std::vector<TComponent*>& Selection() const { return FSelection; }
    bool IsSelected(const TComponent* Component) const;
    void Select(std::vector<TComponent*> Components);
    void SelectComponent(TComponent* Component) override { Select({Component}); }
    void ToggleSelected(TComponent* Component);
    // Everything on the form but itself.
    void SelectAll();

    // Whether the designer may take it off the form and move it: neither the root nor
    // a part of a frame or of another component.
    bool IsOwn(const TComponent* Component) const;

    // What stands inside a component, in the order of the form file; for the form also
    // what has no place inside another.
    std::vector<TComponent*> ChildrenOf(TComponent& Parent) const;

    // Makes a component inside Parent (the nearest container that takes it) and selects
    // it. An empty Place gives it its usual size; places are in the parent's client
    // area, in pixels.
    TComponent& Add(const TMetaClass& Class, TComponent& Parent, const TRect& Place);
    // Loads the form anew from its changed tree, as one step, and selects components by
    // name. Errors: as opening a form; it stays as it was then.
    void Rewrite(TFormDocument Document, const std::vector<std::string>& Selected);
    // The selected components that can be taken off the form, without those inside others.
    std::vector<TComponent*> OutermostSelected() const;
    // Destroys the selected components with what is inside them.
    void DeleteSelected();
    // Moves and sizes all selected components that have a place.
    void ShiftSelected(int DeltaX, int DeltaY, int DeltaWidth, int DeltaHeight);

    // In front of the other controls, or behind them.
    void OrderSelected(bool ToFront);

    // Of a control, or of the icon that stands for another component.
    static TRect PlaceOf(const TComponent& Component);
    static void SetPlace(TComponent& Component, const TRect& Place);
    static constexpr int IconSize = 28;

    bool CanUndo() const { return !FUndo.empty(); }
    bool CanRedo() const { return !FRedo.empty(); }
    void Undo();
    void Redo();

    // The components were laid out by being shown, which is no change to be saved.
    void Settle();

    std::function<void()> OnChanged;   // properties, components, or IsModified
    std::function<void()> OnSelection; // Selection
    std::function<void()> BeforeReload;
    std::function<void()> AfterReload;

private:
    // The form at one time. Texts: those that its file does not hold, because
    // translators keep them in files of their own, by component and property.
    struct TState {
        TFormDocument Document;
        std::string Bytes;
        std::map<std::string, std::string> Texts;
    };
    using TStates = std::deque<std::shared_ptr<const TState>>;

    std::unique_ptr<TLoadedForm> Load(const TFormDocument& Document) const;
    std::shared_ptr<const TState> TakeState();
    std::map<std::string, std::string> OutsideTexts();
    void RestoreTexts(const std::map<std::string, std::string>& Texts);
    void Step(TStates& From, TStates& To);
    void Remember();
    std::vector<std::string> SelectedNames();
    // The components made from State take the place of the present ones.
    void TakeOver(std::unique_ptr<TLoadedForm> Form, std::shared_ptr<const TState> State,
                  const std::vector<std::string>& Selected);
    void DestroyWithContents(TComponent& Component);
    std::string NewName(const TMetaClass& Class) const;
    void Tell(const std::function<void()>& Event) const;

    std::string FFileName;
    std::unique_ptr<TLoadedForm> FForm;
    std::vector<TComponent*> FSelection;
    std::shared_ptr<const TState> FPresent;
    std::shared_ptr<const TState> FSaved; // null while there is no file
    TStates FUndo;
    TStates FRedo;
};
