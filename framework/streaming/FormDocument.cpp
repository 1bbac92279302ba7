#include "framework/streaming/FormDocument.h"

#include <algorithm>

#include "framework/streaming/FormNames.h"
#include "framework/streaming/FormSource.h"

TFormTextProfile TFormTextProfile::Lfm()
{
    TFormTextProfile Result;
    Result.Dialect = TFormDialect::Lfm;
    Result.Encoding = TFormEncoding::Utf8;
    Result.NonAscii = TFormNonAscii::Raw;
    Result.FloatDecimals = 0;
    Result.LineEnd = Result.FinalText = "\n";
    return Result;
}

const TFormProperty* TFormProperties::Find(std::string_view Name) const
{
    const auto Found = std::find_if(FProperties.rbegin(), FProperties.rend(),
                                    [&](const TFormProperty& One) { return SameName(One.Name(), Name); });
    return Found == FProperties.rend() ? nullptr : &*Found;
}

TFormProperty* TFormProperties::Find(std::string_view Name)
{
    return const_cast<TFormProperty*>(std::as_const(*this).Find(Name));
}

const TFormValue* TFormProperties::FindValue(std::string_view Name) const
{
    const auto* const Found = Find(Name);
    return Found ? &Found->Value : nullptr;
}

void TFormProperties::SetValue(std::string_view Name, TFormValue Value)
{
    auto* const Found = Find(Name);
    if (!Found)
        Add(std::string(Name), std::move(Value));
    else if (!Found->Value.SameAs(Value))
        Found->Value = std::move(Value);
}

TFormProperty& TFormProperties::Add(std::string Name, TFormValue Value)
{
    return FProperties.emplace_back(std::move(Name), std::move(Value));
}

void TFormItem::SetIndex(std::optional<std::int64_t> Value)
{
    FHeaderChanged |= FIndex != Value;
    FIndex = Value;
}

void TFormItem::InitHeader(std::optional<std::int64_t> Index)
{
    FIndex = Index;
    FHeaderChanged = false;
}

TFormObject::TFormObject(TFormObjectKind Kind, std::string Name, std::string ClassName)
    : FKind(Kind), FName(std::move(Name)), FClassName(std::move(ClassName))
{
}

void TFormObject::SetKind(TFormObjectKind Value)
{
    FHeaderChanged |= FKind != Value;
    FKind = Value;
}

void TFormObject::SetName(std::string Value)
{
    FHeaderChanged |= FName != Value;
    FName = std::move(Value);
}

void TFormObject::SetClassName(std::string Value)
{
    FHeaderChanged |= FClassName != Value;
    FClassName = std::move(Value);
}

void TFormObject::SetPosition(std::optional<std::int64_t> Value)
{
    FHeaderChanged |= FPosition != Value;
    FPosition = Value;
}

void TFormObject::InitHeader(TFormObjectKind Kind, std::string Name, std::string ClassName,
                             std::optional<std::int64_t> Position)
{
    FKind = Kind;
    FName = std::move(Name);
    FClassName = std::move(ClassName);
    FPosition = Position;
    FHeaderChanged = false;
}

const TFormObject* TFormObject::FindChild(std::string_view Name) const
{
    const auto Found = std::find_if(FChildren.begin(), FChildren.end(),
                                    [&](const TFormObject& Child) { return SameName(Child.Name(), Name); });
    return Found == FChildren.end() ? nullptr : &*Found;
}

TFormObject* TFormObject::FindChild(std::string_view Name)
{
    return const_cast<TFormObject*>(std::as_const(*this).FindChild(Name));
}

bool SameTree(const TFormObject& One, const TFormObject& Other)
{
    return One.Kind() == Other.Kind() && One.Name() == Other.Name() && One.ClassName() == Other.ClassName() &&
           One.Position() == Other.Position() &&
           std::equal(One.Properties().begin(), One.Properties().end(), Other.Properties().begin(),
                      Other.Properties().end(),
                      [](const TFormProperty& A, const TFormProperty& B) {
                          return A.Name() == B.Name() && A.Value.SameAs(B.Value);
                      }) &&
           std::equal(One.Children().begin(), One.Children().end(), Other.Children().begin(),
                      Other.Children().end(), SameTree);
}

bool TFormDocument::SameTree(const TFormDocument& Other) const
{
    return ::SameTree(Root, Other.Root);
}

EFormFileError TFormDocument::ErrorAt(const TFormSpan& Place, const std::string& Message) const
{
    if (Place.Source)
        return Place.Source->ErrorAt(Place.Source->SkipBlanks(Place.Begin), Message);
    const std::string FileName = Source ? Source->FileName : std::string();
    return Format == TFormFormat::Binary ? EFormFileError(FileName, 0, Message)
                                         : EFormFileError(FileName, 1, 1, Message);
}
