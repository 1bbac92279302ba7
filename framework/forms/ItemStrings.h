// The lines of controls that show one item a line: list boxes, combo boxes,
// radio groups, tabs.
#pragma once

#include "framework/rtl/ChunkedList.h"
#include "framework/rtl/Strings.h"

// A control that is told of every change after it has happened.
class TItemsClient {
public:
    virtual ~TItemsClient() = default;
    virtual void ItemInserted(int Index) = 0;
    virtual void ItemDeleted(int Index) = 0;
    virtual void ItemChanged(int Index) = 0;
    // All lines may be elsewhere; their number is the same.
    virtual void ItemsReordered() = 0;
    // Around a group of changes.
    virtual void ItemsUpdating(bool) {}
};

// Holds the lines whether the control has a window or not. A list that the
// control sorts takes new lines where they belong, behind those that are equal,
// and keeps a line that is changed where it is: a translated line must not move
// under its index. Many lines cost little, in whatever order they come and go.
class TItemStrings : public TStrings {
public:
    TItemStrings(TPersistent& Owner, TItemsClient& Client) : FOwner(Owner), FClient(Client) {}

    TPersistent* GetOwner() const override { return &FOwner; }
    bool KeepsSorted() const { return FKeepsSorted; }
    // Turning it on sorts the lines.
    void SetKeepsSorted(bool Value);
    using TStrings::Updating;

    int Count() const override { return static_cast<int>(FLines.Count()); }
    const std::string& Get(int Index) const override { return FLines[Check(Index)].Text; }
    TObject* Objects(int Index) const override { return FLines[Check(Index)].Object; }
    void Put(int Index, const std::string& S) override;
    void PutObject(int Index, TObject* Object) override;
    int AddObject(const std::string& S, TObject* Object) override;
    void Insert(int Index, const std::string& S, TObject* Object = nullptr) override;
    void Delete(int Index) override;
    void Clear() override;

protected:
    void SetUpdateState(bool Updating) override { FClient.ItemsUpdating(Updating); }

private:
    struct TLine {
        std::string Text;
        TObject* Object = nullptr;
    };

    size_t Check(int Index) const;
    int SortedPlace(const std::string& S) const;
    void InsertLine(int Index, const std::string& S, TObject* Object);

    TPersistent& FOwner;
    TItemsClient& FClient;
    TChunkedList<TLine> FLines;
    bool FKeepsSorted = false;
};
