#include "framework/forms/MemoLines.h"

#include <string_view>

int TCustomMemo::TMemoLines::Count() const
{
    return static_cast<int>(Lines().size());
}

const std::string& TCustomMemo::TMemoLines::Get(int Index) const
{
    return Lines()[Check(Index)];
}

TObject* TCustomMemo::TMemoLines::Objects(int Index) const
{
    Check(Index);
    return nullptr;
}

void TCustomMemo::TMemoLines::Put(int Index, const std::string& S)
{
    const size_t At = Check(Index);
    if (FLines[At] == S)
        return;
    FLines[At] = S;
    WriteText();
}

void TCustomMemo::TMemoLines::Insert(int Index, const std::string& S, TObject*)
{
    if (Index < 0 || Index > Count())
        RaiseIndexError(Index);
    FLines.insert(FLines.begin() + Index, S);
    WriteText();
}

void TCustomMemo::TMemoLines::Delete(int Index)
{
    const size_t At = Check(Index);
    FLines.erase(FLines.begin() + static_cast<ptrdiff_t>(At));
    WriteText();
}

void TCustomMemo::TMemoLines::Clear()
{
    if (Lines().empty())
        return;
    FLines.clear();
    WriteText();
}

void TCustomMemo::TMemoLines::TextChanged()
{
    if (!FWriting)
        FValid = false;
}

void TCustomMemo::TMemoLines::SetUpdateState(bool Updating)
{
    if (!Updating)
        WriteText();
}

size_t TCustomMemo::TMemoLines::Check(int Index) const
{
    if (Index < 0 || Index >= Count())
        RaiseIndexError(Index);
    return static_cast<size_t>(Index);
}

const std::vector<std::string>& TCustomMemo::TMemoLines::Lines() const
{
    if (FValid)
        return FLines;
    FLines.clear();
    const std::string Text = FMemo.Text();
    std::string_view Rest = Text;
    while (!Rest.empty()) {
        const size_t End = Rest.find_first_of("\r\n");
        FLines.emplace_back(Rest.substr(0, End));
        if (End == Rest.npos)
            break;
        const bool IsPair = Rest.substr(End, 2) == "\r\n";
        Rest.remove_prefix(End + (IsPair ? 2 : 1));
        // A break at the very end begins one more line, an empty one.
        if (Rest.empty())
            FLines.emplace_back();
    }
    FValid = true;
    return FLines;
}

void TCustomMemo::TMemoLines::WriteText()
{
    FValid = true;
    if (Updating())
        return;
    std::string Text;
    for (size_t I = 0; I < FLines.size(); ++I)
        Text.append(I == 0 ? "" : "\r\n").append(FLines[I]);
    FWriting = true;
    FMemo.SetText(Text);
    FWriting = false;
}
