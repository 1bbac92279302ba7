#include "framework/rtl/Object.h"

#include <algorithm>
#include <map>
#include <mutex>

#include "framework/rtl/Exceptions.h"
#include "framework/rtl/RtlConsts.h"
#include "framework/rtl/SysUtils.h"
#include "framework/rtl/TypInfo.h"

namespace {

struct TNameLess {
    using is_transparent = void;
    bool operator()(std::string_view A, std::string_view B) const { return CompareText(A, B) < 0; }
};

std::map<std::string, const TMetaClass*, TNameLess>& Registry()
{
    static std::map<std::string, const TMetaClass*, TNameLess> Classes;
    return Classes;
}

} // namespace

const TMetaClass& TObject::MetaClass()
{
    static const TMetaClass Class("TObject", nullptr, nullptr);
    return Class;
}

const std::string& TObject::ClassName() const
{
    return ClassType().ClassName();
}

bool TObject::InheritsFrom(const TMetaClass& Class) const
{
    return ClassType().InheritsFrom(Class);
}

TMetaClass::TMetaClass(std::string Name, const TMetaClass* Parent, TFactory Factory)
    : TMetaClass(std::move(Name), Parent, Factory, {}, {})
{
}

TMetaClass::TMetaClass(std::string Name, const TMetaClass* Parent, TFactory Factory,
                       std::vector<TPropInfo> Published)
    : TMetaClass(std::move(Name), Parent, Factory, std::move(Published), {})
{
}

TMetaClass::TMetaClass(std::string Name, const TMetaClass* Parent, TFactory Factory,
                       std::vector<TPropInfo> Published, std::vector<TPublishedMethod> Methods)
    : FName(std::move(Name)), FParent(Parent), FFactory(Factory), FOwn(std::move(Published)),
      FMethods(std::move(Methods))
{
    if (FParent) {
        FProperties = FParent->FProperties;
        FIndex = FParent->FIndex;
    }
    for (const TPropInfo& Row : FOwn) {
        const auto [Known, IsNew] = FIndex.try_emplace(Row.Name, static_cast<int>(FProperties.size()));
        if (IsNew)
            FProperties.push_back(&Row);
        else
            FProperties[static_cast<size_t>(Known->second)] = &Row;
    }
}

TMetaClass::~TMetaClass() = default;

bool TMetaClass::InheritsFrom(const TMetaClass& Class) const
{
    for (const TMetaClass* Each = this; Each; Each = Each->FParent)
        if (Each == &Class)
            return true;
    return false;
}

const TPropInfo* TMetaClass::FindProperty(std::string_view Name) const
{
    if (const int Index = PropertyIndex(Name); Index >= 0)
        return FProperties[static_cast<size_t>(Index)];
    for (const TPropInfo* const Row : FProperties)
        if (SameText(Row->Name, Name))
            return Row;
    return nullptr;
}

int TMetaClass::PropertyIndex(std::string_view Name) const
{
    const auto Found = FIndex.find(Name);
    return Found == FIndex.end() ? -1 : Found->second;
}

const TPublishedMethod* TMetaClass::FindMethod(std::string_view Name) const
{
    for (const TMetaClass* Each = this; Each; Each = Each->FParent)
        for (const TPublishedMethod& Method : Each->FMethods)
            if (SameText(Method.Name, Name))
                return &Method;
    return nullptr;
}

void RegisterClass(const TMetaClass& Class)
{
    const auto [Known, IsNew] = Registry().try_emplace(Class.ClassName(), &Class);
    if (!IsNew && Known->second != &Class)
        throw EFilerError(Format(SDuplicateClass, {Class.ClassName()}));
}

void UnRegisterClass(const TMetaClass& Class)
{
    const auto Known = Registry().find(Class.ClassName());
    if (Known != Registry().end() && Known->second == &Class)
        Registry().erase(Known);
}

const TMetaClass* GetClass(std::string_view Name)
{
    const auto Known = Registry().find(Name);
    return Known == Registry().end() ? nullptr : Known->second;
}

const TMetaClass& FindClass(std::string_view Name)
{
    if (const TMetaClass* const Class = GetClass(Name))
        return *Class;
    throw EClassNotFound(Format(SClassNotFound, {std::string(Name)}));
}

std::vector<const TMetaClass*> RegisteredClasses()
{
    std::vector<const TMetaClass*> Result;
    for (const auto& [Name, Class] : Registry())
        Result.push_back(Class);
    return Result;
}

const TMetaClass& GenericClass(const std::string& Name, const TMetaClass& Parent)
{
    static std::map<std::pair<std::string, const TMetaClass*>, std::unique_ptr<TMetaClass>> Classes;
    static std::mutex Lock;
    const std::scoped_lock Guard(Lock);
    std::unique_ptr<TMetaClass>& Class = Classes[{Name, &Parent}];
    if (!Class)
        Class = std::make_unique<TMetaClass>(Name, &Parent, nullptr);
    return *Class;
}
