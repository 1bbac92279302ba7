#include "framework/forms/FormResources.h"

#include <map>
#include <vector>

namespace {

struct TResources {
    std::map<std::string, std::string_view, std::less<>> Texts;
    TFormLoader Loader = nullptr;
};

TResources& Resources()
{
    static TResources Instance;
    return Instance;
}

} // namespace

void RegisterFormResource(const std::string& ClassName, std::string_view Text)
{
    Resources().Texts[ClassName] = Text;
}

const std::string_view* FindFormResource(const std::string& ClassName)
{
    const auto Found = Resources().Texts.find(ClassName);
    return Found == Resources().Texts.end() ? nullptr : &Found->second;
}

void SetFormLoader(TFormLoader Value)
{
    Resources().Loader = Value;
}

bool InitInheritedComponent(TComponent& Instance, const TMetaClass& RootAncestor)
{
    std::vector<const TMetaClass*> Classes;
    for (const TMetaClass* Class = &Instance.DeclaredClass(); Class && Class != &RootAncestor;
         Class = Class->ClassParent())
        if (FindFormResource(Class->ClassName()))
            Classes.push_back(Class);
    if (!Resources().Loader)
        return false;
    // The descendant's file names it, unless it has a name already.
    const bool Named = !Instance.Name().empty();
    for (auto Class = Classes.rbegin(); Class != Classes.rend(); ++Class) {
        if (!Named)
            Instance.SetName("");
        Resources().Loader(Instance, (*Class)->ClassName());
    }
    return !Classes.empty();
}
