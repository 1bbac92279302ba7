// The lines of a memo, one view of its text. Included by Edits.cpp only.
#pragma once

#include "framework/forms/Edits.h"

// The text is the memo's: a changed line is in the window at once, and what the
// user types is in the list. Lines have no attached objects.
class TCustomMemo::TMemoLines : public TStrings {
public:
    explicit TMemoLines(TCustomMemo& Memo) : FMemo(Memo) {}

    TPersistent* GetOwner() const override { return &FMemo; }
    int Count() const override;
    const std::string& Get(int Index) const override;
    TObject* Objects(int Index) const override;
    void Put(int Index, const std::string& S) override;
    void PutObject(int, TObject*) override {}
    void Insert(int Index, const std::string& S, TObject* Object = nullptr) override;
    void Delete(int Index) override;
    void Clear() override;

    // The memo's text is no longer what the lines were made from.
    void TextChanged();

protected:
    void SetUpdateState(bool Updating) override;

private:
    const std::vector<std::string>& Lines() const;
    size_t Check(int Index) const;
    void WriteText();

    TCustomMemo& FMemo;
    mutable std::vector<std::string> FLines;
    mutable bool FValid = true;
    bool FWriting = false;
};
