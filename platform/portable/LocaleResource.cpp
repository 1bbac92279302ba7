#include "platform/portable/LocaleResource.h"

#include <cstdlib>
#include <memory>

#include <unicode/ures.h>

namespace {

struct TClose {
    void operator()(UResourceBundle* Bundle) const { ures_close(Bundle); }
};
using TBundle = std::unique_ptr<UResourceBundle, TClose>;

// The data of this very locale; null when it has none of its own.
TBundle Open(const std::string& Locale)
{
    UErrorCode Error = U_ZERO_ERROR;
    TBundle Bundle(ures_openDirect(nullptr, Locale.c_str(), &Error));
    return U_SUCCESS(Error) ? std::move(Bundle) : nullptr;
}

std::optional<icu::UnicodeString> Text(const UResourceBundle* Bundle)
{
    UErrorCode Error = U_ZERO_ERROR;
    std::int32_t Length = 0;
    const char16_t* const Found = ures_getString(Bundle, &Length, &Error);
    if (U_FAILURE(Error))
        return std::nullopt;
    return icu::UnicodeString(Found, Length);
}

TBundle Step(const UResourceBundle* Bundle, const char* Name)
{
    UErrorCode Error = U_ZERO_ERROR;
    TBundle Next(*Name == '#' ? ures_getByIndex(Bundle, std::atoi(Name + 1), nullptr, &Error)
                              : ures_getByKey(Bundle, Name, nullptr, &Error));
    return U_SUCCESS(Error) ? std::move(Next) : nullptr;
}

std::optional<icu::UnicodeString> Find(TBundle Bundle, TResourcePath Path)
{
    for (const char* const Name : Path)
        if (Bundle)
            Bundle = Step(Bundle.get(), Name);
    // A pattern with digits of its own is an array that begins with the pattern.
    if (Bundle && ures_getType(Bundle.get()) == URES_ARRAY)
        Bundle = Step(Bundle.get(), "#0");
    return Bundle ? Text(Bundle.get()) : std::nullopt;
}

std::string Parent(const std::string& Locale)
{
    if (const TBundle Bundle = Open(Locale))
        if (const TBundle Named = Step(Bundle.get(), "%%Parent")) {
            std::string Result;
            return Text(Named.get()).value_or(u"root").toUTF8String(Result);
        }
    const std::size_t Line = Locale.rfind('_');
    return Line == Locale.npos ? "root" : Locale.substr(0, Line);
}

} // namespace

std::optional<icu::UnicodeString> FindResource(const std::string& Locale, TResourcePath Path, TRoot Root)
{
    for (std::string Name = Locale; Name != "root"; Name = Parent(Name))
        if (auto Found = Find(Open(Name), Path))
            return Found;
    return Root == TRoot::With ? Find(Open("root"), Path) : std::nullopt;
}
