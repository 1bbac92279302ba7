#include "framework/rtl/Strings.h"

#include <algorithm>

#include "framework/rtl/Filer.h"
#include "framework/rtl/Files.h"
#include "framework/rtl/SysUtils.h"

namespace {

// Calls Visit with each line of Text; CR LF, LF and CR end a line, and what
// follows the last line end is a line only if there is something.
template<class TVisitor>
void ForEachLine(std::string_view Text, TVisitor Visit)
{
    while (!Text.empty()) {
        const size_t End = std::min(Text.find_first_of("\r\n"), Text.size());
        Visit(Text.substr(0, End));
        size_t Next = End;
        if (Next < Text.size())
            Next += Text.substr(Next, 2) == "\r\n" ? 2 : 1;
        Text.remove_prefix(Next);
    }
}

} // namespace

const TMetaClass& TStrings::MetaClass()
{
    static const TMetaClass Class("TStrings", &TPersistent::MetaClass(), nullptr);
    return Class;
}

void TStrings::RaiseIndexError(int Index)
{
    throw EStringListError(Format(SListIndexError, {Index}));
}

int TStrings::AddObject(const std::string& S, TObject* Object)
{
    const int Index = Count();
    Insert(Index, S, Object);
    return Index;
}

void TStrings::AddStrings(const TStrings& Source)
{
    BeginUpdate();
    for (int I = 0, End = Source.Count(); I < End; ++I)
        AddObject(Source.Get(I), Source.Objects(I));
    EndUpdate();
}

void TStrings::Assign(const TPersistent* Source)
{
    const auto* const Lines = dynamic_cast<const TStrings*>(Source);
    if (!Lines) {
        TPersistent::Assign(Source);
        return;
    }
    if (Lines == this)
        return;
    BeginUpdate();
    Clear();
    AddStrings(*Lines);
    EndUpdate();
}

bool TStrings::Equals(const TStrings& Other) const
{
    if (Count() != Other.Count())
        return false;
    for (int I = 0; I < Count(); ++I)
        if (Get(I) != Other.Get(I))
            return false;
    return true;
}

void TStrings::Exchange(int Index1, int Index2)
{
    BeginUpdate();
    const std::string Text = Get(Index1);
    TObject* const Object = Objects(Index1);
    Put(Index1, Get(Index2));
    PutObject(Index1, Objects(Index2));
    Put(Index2, Text);
    PutObject(Index2, Object);
    EndUpdate();
}

void TStrings::Move(int CurIndex, int NewIndex)
{
    if (CurIndex == NewIndex)
        return;
    BeginUpdate();
    const std::string Text = Get(CurIndex);
    TObject* const Object = Objects(CurIndex);
    Delete(CurIndex);
    Insert(NewIndex, Text, Object);
    EndUpdate();
}

int TStrings::IndexOf(std::string_view S) const
{
    for (int I = 0; I < Count(); ++I)
        if (AnsiSameText(Get(I), S))
            return I;
    return -1;
}

int TStrings::IndexOfObject(const TObject* Object) const
{
    for (int I = 0; I < Count(); ++I)
        if (Objects(I) == Object)
            return I;
    return -1;
}

std::string TStrings::Names(int Index) const
{
    const std::string& Line = Get(Index);
    const size_t Equals = Line.find('=');
    return Equals == Line.npos ? std::string() : Line.substr(0, Equals);
}

std::string TStrings::Values(std::string_view Name) const
{
    const int Index = IndexOfName(Name);
    return Index < 0 ? std::string() : Get(Index).substr(Name.size() + 1);
}

void TStrings::SetValue(const std::string& Name, const std::string& Value)
{
    const int Index = IndexOfName(Name);
    if (Value.empty()) {
        if (Index >= 0)
            Delete(Index);
    } else if (Index < 0) {
        Add(Name + "=" + Value);
    } else {
        Put(Index, Name + "=" + Value);
    }
}

int TStrings::IndexOfName(std::string_view Name) const
{
    for (int I = 0; I < Count(); ++I) {
        const std::string& Line = Get(I);
        const size_t Equals = Line.find('=');
        if (Equals != Line.npos && AnsiSameText(std::string_view(Line).substr(0, Equals), Name))
            return I;
    }
    return -1;
}

std::string TStrings::Text() const
{
    std::string Result;
    for (int I = 0; I < Count(); ++I)
        Result.append(Get(I)).append("\r\n");
    return Result;
}

void TStrings::SetText(std::string_view Value)
{
    BeginUpdate();
    Clear();
    ForEachLine(Value, [&](std::string_view Line) { Add(std::string(Line)); });
    EndUpdate();
}

void TStrings::LoadFromFile(const std::string& FileName)
{
    SetText(ReadWholeFile(FileName));
}

void TStrings::SaveToFile(const std::string& FileName) const
{
    TFileReplacer File(FileName);
    for (int I = 0; I < Count(); ++I) {
        File.Write(Get(I));
        File.Write("\r\n");
    }
    File.Commit();
}

void TStrings::BeginUpdate()
{
    if (FUpdateCount++ == 0)
        SetUpdateState(true);
}

void TStrings::EndUpdate()
{
    if (--FUpdateCount == 0)
        SetUpdateState(false);
}

void TStrings::DefineProperties(TFiler& Filer)
{
    Filer.DefineProperty(
        "Strings", [this](TReader& Reader) { ReadData(Reader); },
        [this](TWriter& Writer) { WriteData(Writer); }, Count() > 0);
}

void TStrings::ReadData(TReader& Reader)
{
    std::vector<std::string> Lines;
    Reader.ReadListBegin();
    while (!Reader.EndOfList())
        Lines.push_back(Reader.ReadString());
    Reader.ReadListEnd();
    BeginUpdate();
    Clear();
    for (const std::string& Line : Lines)
        Add(Line);
    EndUpdate();
}

void TStrings::WriteData(TWriter& Writer) const
{
    Writer.WriteListBegin();
    for (int I = 0; I < Count(); ++I)
        Writer.WriteString(Get(I));
    Writer.WriteListEnd();
}

const TMetaClass& TStringList::MetaClass()
{
    static const TMetaClass Class("TStringList", &TStrings::MetaClass(), nullptr);
    return Class;
}

void TStringList::Put(int Index, const std::string& S)
{
    if (FSorted)
        throw EStringListError(SSortedListError);
    const size_t At = Check(Index);
    Changing();
    FItems[At].Text = S;
    Changed();
}

void TStringList::PutObject(int Index, TObject* Object)
{
    const size_t At = Check(Index);
    Changing();
    FItems[At].Object = Object;
    Changed();
}

int TStringList::AddObject(const std::string& S, TObject* Object)
{
    int Index = Count();
    if (FSorted && Find(S, Index)) {
        if (Duplicates == dupIgnore)
            return Index;
        if (Duplicates == dupError)
            throw EStringListError(SDuplicateString);
    }
    Changing();
    FItems.insert(FItems.begin() + Index, TItem{S, Object});
    Changed();
    return Index;
}

void TStringList::Insert(int Index, const std::string& S, TObject* Object)
{
    if (FSorted)
        throw EStringListError(SSortedListError);
    if (Index < 0 || Index > Count())
        RaiseIndexError(Index);
    Changing();
    FItems.insert(FItems.begin() + Index, TItem{S, Object});
    Changed();
}

void TStringList::Delete(int Index)
{
    const size_t At = Check(Index);
    Changing();
    FItems.erase(FItems.begin() + static_cast<ptrdiff_t>(At));
    Changed();
}

void TStringList::Clear()
{
    if (FItems.empty())
        return;
    Changing();
    FItems.clear();
    Changed();
}

int TStringList::IndexOf(std::string_view S) const
{
    if (!FSorted)
        return TStrings::IndexOf(S);
    int Index = 0;
    return Find(S, Index) ? Index : -1;
}

void TStringList::Sort()
{
    if (FSorted)
        return;
    Changing();
    std::stable_sort(FItems.begin(), FItems.end(),
                     [](const TItem& A, const TItem& B) { return AnsiCompareText(A.Text, B.Text) < 0; });
    Changed();
}

void TStringList::SetSorted(bool Value)
{
    if (Value)
        Sort();
    FSorted = Value;
}

bool TStringList::Find(std::string_view S, int& Index) const
{
    const auto Place =
        std::lower_bound(FItems.begin(), FItems.end(), S, [](const TItem& Item, std::string_view Text) {
            return AnsiCompareText(Item.Text, Text) < 0;
        });
    Index = static_cast<int>(Place - FItems.begin());
    return Place != FItems.end() && AnsiSameText(Place->Text, S);
}

void TStringList::Changing()
{
    if (!Updating() && OnChanging)
        OnChanging(this);
}

void TStringList::Changed()
{
    if (!Updating() && OnChange)
        OnChange(this);
}

void TStringList::SetUpdateState(bool Updating)
{
    if (Updating)
        Changing();
    else
        Changed();
}
