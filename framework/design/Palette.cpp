#include "framework/design/Palette.h"

#include <algorithm>

namespace {

std::vector<TPalettePage>& Pages()
{
    static std::vector<TPalettePage> Instance;
    return Instance;
}

bool IsOnPalette(const TMetaClass& Class)
{
    return std::ranges::any_of(Pages(), [&](const TPalettePage& Page) {
        return std::ranges::find(Page.Classes, &Class) != Page.Classes.end();
    });
}

TPalettePage& NeedPage(const std::string& Name)
{
    const auto Found = std::ranges::find(Pages(), Name, &TPalettePage::Name);
    return Found != Pages().end() ? *Found : Pages().emplace_back(TPalettePage{Name, {}});
}

} // namespace

void RegisterComponents(const std::string& Page, const std::vector<const TMetaClass*>& Classes)
{
    for (const TMetaClass* const Class : Classes) {
        RegisterClass(*Class);
        if (!IsOnPalette(*Class))
            NeedPage(Page).Classes.push_back(Class);
    }
}

void UnregisterComponents(const std::vector<const TMetaClass*>& Classes)
{
    for (TPalettePage& Page : Pages())
        std::erase_if(Page.Classes, [&](const TMetaClass* Class) {
            return std::ranges::find(Classes, Class) != Classes.end();
        });
    std::erase_if(Pages(), [](const TPalettePage& Page) { return Page.Classes.empty(); });
}

const std::vector<TPalettePage>& PalettePages()
{
    return Pages();
}
