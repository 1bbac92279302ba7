#include "Obxc3/Obxc3.h"

#include <cstddef>
#include <iterator>
#include <utility>

#include "Qbt/Qbt.h"
#include "Qct/Qct.h"
#include "Qft/Qft.h"
#include "Qlt/Qlt.h"
#include "Qrt/Qrt.h"

namespace {

// The slot of LoadStringA belongs to the translators, which may outlive the package.
bool SlotWasRedirected = false;

void StartResourceStrings()
{
    StartQrt();
    if (std::exchange(SlotWasRedirected, false) && ResComponentList.load())
        HookLoadString(false);
}

void StopResourceStrings()
{
    SlotWasRedirected = OrgLoadString.load() != nullptr;
    HookLoadString(true);
    StopQrt();
}

void Nothing() {}

struct TUnit {
    const TMetaClass& (*Translator)();
    void (*Start)();
    void (*Stop)();
};

// In the order in which they start.
constexpr TUnit Units[] = {
    {TCommonDialogTranslator::MetaClass, StartQct, StopQct},
    {TResourceTranslator::MetaClass, StartResourceStrings, StopResourceStrings},
    {TFormTranslator::MetaClass, Nothing, Nothing},
    {TLocaleTranslator::MetaClass, Nothing, Nothing},
    {TButtonTranslator::MetaClass, StartQbt, StopQbt},
};

int Starts = 0;

void UnregisterClasses(size_t Count)
{
    while (Count-- > 0)
        UnRegisterClass(Units[Count].Translator());
}

void RegisterClasses()
{
    size_t Count = 0;
    try {
        for (; Count < std::size(Units); ++Count)
            RegisterClass(Units[Count].Translator());
    } catch (...) {
        UnregisterClasses(Count);
        throw;
    }
}

void StartUnits()
{
    RegisterClasses();
    for (const TUnit& Unit : Units)
        Unit.Start();
}

void StopUnits()
{
    for (size_t I = std::size(Units); I-- > 0;)
        Units[I].Stop();
    UnregisterClasses(std::size(Units));
}

} // namespace

void StartPackage()
{
    if (Starts == 0)
        StartUnits();
    ++Starts;
}

void StopPackage()
{
    if (Starts > 0 && --Starts == 0)
        StopUnits();
}
