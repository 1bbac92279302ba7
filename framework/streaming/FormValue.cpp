#include "framework/streaming/FormValue.h"

#include <algorithm>
#include <cmath>

#include "framework/streaming/FormDocument.h"
#include "framework/streaming/FormNames.h"

namespace {

bool SameNumber(const TFormValue& One, const TFormValue& Other)
{
    if (One.Is(TFormValueKind::Integer) && Other.Is(TFormValueKind::Integer))
        return One.AsInteger() == Other.AsInteger();
    const double First = One.AsFloat(), Second = Other.AsFloat();
    return First == Second || (std::isnan(First) && std::isnan(Second));
}

bool SameSet(const std::vector<std::string>& One, const std::vector<std::string>& Other)
{
    const auto Sorted = [](const std::vector<std::string>& Set) {
        std::vector<std::string> Result;
        for (const auto& Element : Set)
            Result.push_back(LowerName(Element));
        std::sort(Result.begin(), Result.end());
        Result.erase(std::unique(Result.begin(), Result.end()), Result.end());
        return Result;
    };
    return Sorted(One) == Sorted(Other);
}

bool SameProperties(const TFormProperties& One, const TFormProperties& Other)
{
    return std::equal(One.Properties().begin(), One.Properties().end(), Other.Properties().begin(),
                      Other.Properties().end(), [](const TFormProperty& A, const TFormProperty& B) {
                          return SameName(A.Name(), B.Name()) && A.Value.SameAs(B.Value);
                      });
}

bool IsNumber(const TFormValue& Value)
{
    return Value.Is(TFormValueKind::Integer) || Value.Is(TFormValueKind::Float);
}

} // namespace

TFormValue::TFormValue(TFormValueKind Kind, TData Data) : FData(std::move(Data)), FKind(Kind) {}

TFormValue::TFormValue() : TFormValue(TFormValueKind::Ident, std::string("Null")) {}
TFormValue::TFormValue(const TFormValue& Other) = default;
TFormValue::TFormValue(TFormValue&& Other) noexcept = default;
TFormValue& TFormValue::operator=(const TFormValue& Other) = default;
TFormValue& TFormValue::operator=(TFormValue&& Other) noexcept = default;
TFormValue::~TFormValue() = default;

TFormValue TFormValue::Integer(std::int64_t Value)
{
    return {TFormValueKind::Integer, Value};
}

TFormValue TFormValue::Extended(TFormExtended Value)
{
    return {TFormValueKind::Float, Value};
}

TFormValue TFormValue::Float(double Value)
{
    return Extended(ExtendedFromDouble(Value));
}

TFormValue TFormValue::Double(double Value)
{
    TFormValue Result = Float(Value);
    Result.FFloatType = TFormFloatType::Double;
    return Result;
}

TFormValue TFormValue::Single(float Value)
{
    TFormValue Result = Float(Value);
    Result.FFloatType = TFormFloatType::Single;
    return Result;
}

TFormValue TFormValue::Currency(std::int64_t TenThousandths)
{
    TFormValue Result(TFormValueKind::Float, TenThousandths);
    Result.FFloatType = TFormFloatType::Currency;
    return Result;
}

TFormValue TFormValue::Date(double Days)
{
    TFormValue Result = Float(Days);
    Result.FFloatType = TFormFloatType::Date;
    return Result;
}

TFormValue TFormValue::String(std::string Utf8)
{
    return {TFormValueKind::String, std::move(Utf8)};
}

TFormValue TFormValue::Ident(std::string Name)
{
    return {TFormValueKind::Ident, std::move(Name)};
}

TFormValue TFormValue::Set(std::vector<std::string> Elements)
{
    return {TFormValueKind::Set, std::move(Elements)};
}

TFormValue TFormValue::List(std::vector<TFormValue> Values)
{
    return {TFormValueKind::List, std::move(Values)};
}

TFormValue TFormValue::StringList(const std::vector<std::string>& Lines)
{
    std::vector<TFormValue> Values;
    Values.reserve(Lines.size());
    for (const auto& Line : Lines)
        Values.push_back(String(Line));
    return List(std::move(Values));
}

TFormValue TFormValue::Collection(std::vector<TFormItem> Items)
{
    return {TFormValueKind::Collection, std::move(Items)};
}

TFormValue TFormValue::Binary(std::string Bytes)
{
    return {TFormValueKind::Binary, std::move(Bytes)};
}

bool TFormValue::IsIdent(std::string_view Name) const
{
    return FKind == TFormValueKind::Ident && SameName(AsIdent(), Name);
}

const std::string& TFormValue::TextOf(TFormValueKind Kind) const
{
    if (FKind != Kind)
        throw std::bad_variant_access();
    return std::get<std::string>(FData);
}

double TFormValue::AsFloat() const
{
    if (FKind == TFormValueKind::Integer)
        return static_cast<double>(AsInteger());
    if (FFloatType == TFormFloatType::Currency)
        return static_cast<double>(AsCurrency()) / 10000;
    return ExtendedToDouble(AsExtended());
}

TFormExtended TFormValue::AsExtended() const
{
    if (FKind == TFormValueKind::Integer || FFloatType == TFormFloatType::Currency)
        return ExtendedFromDouble(AsFloat());
    return std::get<TFormExtended>(FData);
}

std::int64_t TFormValue::AsCurrency() const
{
    if (FKind != TFormValueKind::Float)
        throw std::bad_variant_access();
    return std::get<std::int64_t>(FData);
}

std::optional<std::vector<std::string>> TFormValue::AsStringList() const
{
    if (FKind != TFormValueKind::List)
        return std::nullopt;
    std::vector<std::string> Result;
    Result.reserve(AsList().size());
    for (const auto& Value : AsList()) {
        if (!Value.Is(TFormValueKind::String))
            return std::nullopt;
        Result.push_back(Value.AsString());
    }
    return Result;
}

std::vector<TFormValue>& TFormValue::EditList()
{
    FPartsTouched = true;
    return std::get<std::vector<TFormValue>>(FData);
}

std::vector<TFormItem>& TFormValue::EditCollection()
{
    FPartsTouched = true;
    return std::get<std::vector<TFormItem>>(FData);
}

bool TFormValue::SameAs(const TFormValue& Other) const
{
    if (IsNumber(*this) && IsNumber(Other))
        return SameNumber(*this, Other);
    if (FKind != Other.FKind)
        return false;
    switch (FKind) {
    case TFormValueKind::Ident:
        return SameName(AsIdent(), Other.AsIdent());
    case TFormValueKind::Set:
        return SameSet(AsSet(), Other.AsSet());
    case TFormValueKind::List:
        return std::equal(AsList().begin(), AsList().end(), Other.AsList().begin(), Other.AsList().end(),
                          [](const TFormValue& One, const TFormValue& Two) { return One.SameAs(Two); });
    case TFormValueKind::Collection:
        return std::equal(AsCollection().begin(), AsCollection().end(), Other.AsCollection().begin(),
                          Other.AsCollection().end(), [](const TFormItem& One, const TFormItem& Two) {
                              return One.Index() == Two.Index() && SameProperties(One, Two);
                          });
    default:
        return std::get<std::string>(FData) == std::get<std::string>(Other.FData);
    }
}
