// Lists of texts, each line with an attached object.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "framework/rtl/Persistent.h"

class TReader;
class TWriter;

// Lines are counted from 0; an index outside the list raises EStringListError
// "List index out of bounds (N)". Attached objects are not owned.
class TStrings : public TPersistent {
    OBX_CLASS(TPersistent)
public:
    virtual int Count() const = 0;
    virtual const std::string& Get(int Index) const = 0;
    virtual TObject* Objects(int Index) const = 0;
    virtual void Put(int Index, const std::string& S) = 0;
    virtual void PutObject(int Index, TObject* Object) = 0;
    virtual void Insert(int Index, const std::string& S, TObject* Object = nullptr) = 0;
    virtual void Delete(int Index) = 0;
    virtual void Clear() = 0;

    const std::string& operator[](int Index) const { return Get(Index); }

    // Both return the new line's index.
    virtual int Add(const std::string& S) { return AddObject(S, nullptr); }
    virtual int AddObject(const std::string& S, TObject* Object);
    void AddStrings(const TStrings& Source);

    // Takes lines and objects of another list of strings.
    void Assign(const TPersistent* Source) override;
    bool Equals(const TStrings& Other) const;
    void Exchange(int Index1, int Index2);
    void Move(int CurIndex, int NewIndex);

    // -1 if there is none; letter case ignored.
    virtual int IndexOf(std::string_view S) const;
    int IndexOfObject(const TObject* Object) const;

    // Lines of the form Name=Value: the text before and behind the first "=".
    std::string Names(int Index) const;
    std::string Values(std::string_view Name) const;
    void SetValue(const std::string& Name, const std::string& Value);
    int IndexOfName(std::string_view Name) const;

    // All lines, each followed by CR LF. Reading takes CR LF, LF and CR as line ends.
    std::string Text() const;
    void SetText(std::string_view Value);

    // Files are replaced as a whole (Files.h). Errors: EFOpenError, EFCreateError.
    void LoadFromFile(const std::string& FileName);
    void SaveToFile(const std::string& FileName) const;

    // Between the two, changes are announced once.
    void BeginUpdate();
    void EndUpdate();

    void DefineProperties(TFiler& Filer) override;

protected:
    // Announces that a group of changes begins (true) or has ended.
    virtual void SetUpdateState(bool) {}
    bool Updating() const { return FUpdateCount > 0; }
    [[noreturn]] static void RaiseIndexError(int Index);

private:
    void ReadData(TReader& Reader);
    void WriteData(TWriter& Writer) const;

    int FUpdateCount = 0;
};

enum TDuplicates { dupIgnore, dupAccept, dupError };

class TStringList : public TStrings {
    OBX_CLASS(TStrings)
public:
    TStringList() = default;

    int Count() const override { return static_cast<int>(FItems.size()); }
    const std::string& Get(int Index) const override { return FItems[Check(Index)].Text; }
    TObject* Objects(int Index) const override { return FItems[Check(Index)].Object; }
    void Put(int Index, const std::string& S) override;
    void PutObject(int Index, TObject* Object) override;
    int AddObject(const std::string& S, TObject* Object) override;
    void Insert(int Index, const std::string& S, TObject* Object = nullptr) override;
    void Delete(int Index) override;
    void Clear() override;
    int IndexOf(std::string_view S) const override;

    // Room for that many lines.
    void Reserve(int Capacity) { FItems.reserve(static_cast<size_t>(Capacity)); }

    // By letter case ignored, in the order of the user's language.
    void Sort();

    // A sorted list keeps itself in order; Duplicates says what Add does with a
    // text that is there already.
    bool Sorted() const { return FSorted; }
    void SetSorted(bool Value);
    TDuplicates Duplicates = dupIgnore;
    // The position of S in a sorted list, or where it would be inserted.
    bool Find(std::string_view S, int& Index) const;

    TNotifyEvent OnChanging;
    TNotifyEvent OnChange;

protected:
    struct TItem {
        std::string Text;
        TObject* Object = nullptr;
    };

    virtual void Changing();
    virtual void Changed();
    void SetUpdateState(bool Updating) override;

    std::vector<TItem> FItems;

private:
    size_t Check(int Index) const
    {
        if (Index < 0 || Index >= Count())
            RaiseIndexError(Index);
        return static_cast<size_t>(Index);
    }

    bool FSorted = false;
};
