#include "framework/design/Experts.h"

#include <algorithm>

namespace {

std::vector<std::unique_ptr<TIExpert>>& Experts()
{
    static std::vector<std::unique_ptr<TIExpert>> Instance;
    return Instance;
}

} // namespace

void RegisterLibraryExpert(std::unique_ptr<TIExpert> Expert)
{
    const std::string Id = Expert->GetIDString();
    const auto Found =
        std::ranges::find_if(Experts(), [&](const auto& Each) { return Each->GetIDString() == Id; });
    if (Found == Experts().end())
        Experts().push_back(std::move(Expert));
    else
        *Found = std::move(Expert);
}

bool UnregisterLibraryExpert(const TIExpert* Expert)
{
    return std::erase_if(Experts(), [Expert](const auto& Each) { return Each.get() == Expert; }) > 0;
}

std::vector<TIExpert*> LibraryExperts()
{
    std::vector<TIExpert*> Result;
    for (const auto& Each : Experts())
        Result.push_back(Each.get());
    return Result;
}
