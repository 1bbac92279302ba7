#include "framework/streaming/LoadedForm.h"

#include <algorithm>
#include <unordered_map>

#include "framework/streaming/ComponentWriter.h"
#include "framework/streaming/FormChanges.h"

// Forgets components that are destroyed: another one may be made in their place.
class TLoadedForm::TWatch : public TComponent {
public:
    TWatch() : TComponent(nullptr) {}

    void Notification(TComponent* Component, TOperation Operation) override
    {
        TComponent::Notification(Component, Operation);
        if (Operation != opRemove)
            return;
        for (TEntry& Each : Entries)
            if (Each.Component == Component)
                Each.Component = nullptr;
    }

    std::vector<TEntry> Entries; // in the order of the document's objects
};

namespace {

using TEntries = std::vector<TLoadedForm::TEntry>;

void CollectObjects(const TFormObject& Object, std::vector<const TFormObject*>& Objects)
{
    Objects.push_back(&Object);
    for (const TFormObject& Child : Object.Children())
        CollectObjects(Child, Objects);
}

void NumberParents(const TFormObject& Object, int Parent, std::vector<int>& Parents)
{
    const int Number = static_cast<int>(Parents.size());
    Parents.push_back(Parent);
    for (const TFormObject& Child : Object.Children())
        NumberParents(Child, Number, Parents);
}

// Where components are written now.
struct TWrittenTree {
    struct TPlace {
        TComponent* Parent;
        int Rank;
    };
    std::unordered_map<const TComponent*, TPlace> Places;
    std::vector<std::pair<TComponent*, std::vector<TComponent*>>> Children;

    explicit TWrittenTree(TComponent& Root) { Visit(Root, Root); }

private:
    void Visit(TComponent& Parent, TComponent& Root)
    {
        std::vector<TComponent*> Found;
        ForEachWrittenChild(Parent, Root, [&](TComponent* Child) {
            Places[Child] = {&Parent, static_cast<int>(Found.size())};
            Found.push_back(Child);
        });
        for (TComponent* const Child : Found)
            Visit(*Child, Root);
        Children.emplace_back(&Parent, std::move(Found));
    }
};

// Puts the tree of the file together anew from the parts that it had.
class TAssembly {
public:
    TAssembly(const TFormDocument& Document, TComponent& Root, const TEntries& Entries)
        : FEntries(Entries), FTree(Root), FAll(Root, TWrittenProperties::All), FChanged(Root)
    {
        CollectObjects(Document.Root, FObjects);
        for (size_t I = 0; I < Entries.size(); ++I)
            if (Entries[I].Component)
                FNumbers.emplace(Entries[I].Component, static_cast<int>(I));
        for (size_t I = 1; I < Entries.size(); ++I)
            if (const TComponent* const Parent = Entries[I].Component ? ParentOf(Entries[I]) : nullptr)
                FChildren[Parent].push_back({Entries[I].Component, static_cast<int>(I)});
        for (const auto& [Parent, Written] : FTree.Children)
            Arrange(*Parent, Written);
    }

    TFormObject Write(TComponent& Component, int Number)
    {
        TFormObject Result = Number < 0 ? FChanged.WriteComponent(Component) : Changed(Component, Number);
        const auto Inside = FChildren.find(&Component);
        if (Inside == FChildren.end() || IsSecond(Component, Number))
            return Result;
        for (const TNode& Each : Inside->second)
            Result.Children().push_back(Write(*Each.Component, Each.Number));
        return Result;
    }

private:
    struct TNode {
        TComponent* Component;
        int Number; // of its entry; -1 for a new component
    };

    int NumberOf(const TComponent* Component) const
    {
        const auto Found = FNumbers.find(Component);
        return Found == FNumbers.end() ? -1 : Found->second;
    }

    // A file may name one inherited component twice; what is inside belongs to the first.
    bool IsSecond(const TComponent& Component, int Number) const
    {
        return Number >= 0 && NumberOf(&Component) != Number;
    }

    // The component whose part of the file an entry belongs to now.
    const TComponent* ParentOf(const TLoadedForm::TEntry& Entry) const
    {
        const auto Place = FTree.Places.find(Entry.Component);
        const TComponent* const Before =
            Entry.Parent < 0 ? nullptr : FEntries[static_cast<size_t>(Entry.Parent)].Component;
        if (Place != FTree.Places.end() && Place->second.Parent != Before)
            return Place->second.Parent;
        return FEntries[static_cast<size_t>(Entry.FileParent)].Component;
    }

    TFormObject Changed(TComponent& Component, int Number)
    {
        const TFormObject& Source = *FObjects[static_cast<size_t>(Number)];
        TFormObject Result;
        static_cast<TFormProperties&>(Result) = Source;
        Result.InitHeader(Source.Kind(), Source.Name(), Source.ClassName(), Source.Position());
        Result.SetSpan(Source.Span());
        const TFormObject After = FAll.WriteComponent(Component);
        const TFormObject& Before = FEntries[static_cast<size_t>(Number)].Before;
        ApplyChanges(Result, Before, After);
        if (After.Name() != Before.Name())
            Result.SetName(After.Name());
        return Result;
    }

    // The file's order stays unless that of the components was changed.
    void Arrange(const TComponent& Parent, const std::vector<TComponent*>& Written)
    {
        auto& Nodes = FChildren[&Parent];
        if (IsReordered(Parent, Written))
            SortAs(Nodes, Written);
        auto Place = Nodes.begin();
        for (TComponent* const Each : Written) {
            const auto Known = std::find_if(Nodes.begin(), Nodes.end(),
                                            [&](const TNode& Node) { return Node.Component == Each; });
            if (Known != Nodes.end())
                Place = Known + 1;
            else if (NumberOf(Each) < 0 && !Each->Name().empty())
                Place = Nodes.insert(Place, {Each, -1}) + 1;
            // Others stand inside a component that is not their parent.
        }
    }

    bool IsReordered(const TComponent& Parent, const std::vector<TComponent*>& Written) const
    {
        int Last = -1;
        for (const TComponent* const Each : Written) {
            const int Number = NumberOf(Each);
            const auto* const Entry = Number < 0 ? nullptr : &FEntries[static_cast<size_t>(Number)];
            if (!Entry || Entry->Parent < 0 ||
                FEntries[static_cast<size_t>(Entry->Parent)].Component != &Parent)
                continue;
            if (Entry->Rank < Last)
                return true;
            Last = Entry->Rank;
        }
        return false;
    }

    void SortAs(std::vector<TNode>& Nodes, const std::vector<TComponent*>& Written) const
    {
        std::vector<TNode> Sorted;
        for (TComponent* const Each : Written)
            for (const TNode& Node : Nodes)
                if (Node.Component == Each)
                    Sorted.push_back(Node);
        // What is not written stands where it stood.
        auto Next = Sorted.begin();
        for (TNode& Node : Nodes)
            if (FTree.Places.contains(Node.Component) && Next != Sorted.end())
                Node = *Next++;
    }

    const TEntries& FEntries;
    TWrittenTree FTree;
    TComponentWriter FAll;
    TComponentWriter FChanged;
    std::vector<const TFormObject*> FObjects;
    std::unordered_map<const TComponent*, int> FNumbers;
    std::unordered_map<const TComponent*, std::vector<TNode>> FChildren;
};

} // namespace

TLoadedForm::TLoadedForm(TFormDocument Document, TUnknownClasses UnknownClasses, const TRootMaker& MakeRoot,
                         TStandInMaker MakeStandIn)
    : FDocument(std::move(Document)), FWatch(std::make_unique<TWatch>())
{
    FRoot = MakeRoot(FDocument.Root);
    TComponentReader Reader(FDocument, UnknownClasses, std::move(MakeStandIn));
    Reader.ReadRoot(*FRoot);

    std::vector<int> FileParents;
    NumberParents(FDocument.Root, -1, FileParents);
    const auto& Components = Reader.Components();
    const TWrittenTree Tree(*FRoot);
    std::unordered_map<const TComponent*, int> Numbers;
    FWatch->Entries.reserve(Components.size());
    for (size_t I = 0; I < Components.size(); ++I) {
        FWatch->Entries.push_back({Components[I], {}, FileParents[I], -1, -1});
        Numbers.emplace(Components[I], static_cast<int>(I));
        FWatch->FreeNotification(Components[I]);
    }
    for (TEntry& Each : FWatch->Entries)
        if (const auto Place = Tree.Places.find(Each.Component); Place != Tree.Places.end())
            if (const auto Parent = Numbers.find(Place->second.Parent); Parent != Numbers.end()) {
                Each.Parent = Parent->second;
                Each.Rank = Place->second.Rank;
            }
    Settle();
}

TLoadedForm::TLoadedForm(TLoadedForm&&) noexcept = default;

// The root goes first, while the watch is there to be told.
TLoadedForm::~TLoadedForm()
{
    FRoot.reset();
}

void TLoadedForm::Settle()
{
    TComponentWriter Writer(*FRoot, TWrittenProperties::All);
    for (TEntry& Each : FWatch->Entries)
        if (Each.Component)
            Each.Before = Writer.WriteComponent(*Each.Component);
}

TFormDocument TLoadedForm::Save() const
{
    TFormDocument Result = FDocument;
    Result.Root = TAssembly(FDocument, *FRoot, FWatch->Entries).Write(*FRoot, 0);
    return Result;
}
