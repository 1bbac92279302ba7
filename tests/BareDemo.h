// The demo's forms and texts as they were before it was globalized.
#pragma once

#include <filesystem>

#include "framework/rtl/Files.h"
#include "framework/streaming/FormFile.h"
#include "tests/Folder.h"
#include "wizard/ProjectScan.h"

// Requires DEMO_FORMS, the folder of the demo's forms.
inline void WriteBareDemo(const TTestFolder& Folder)
{
    for (const auto& Entry : std::filesystem::directory_iterator(DEMO_FORMS)) {
        const std::u8string Name = Entry.path().filename().u8string();
        const std::u8string Full = Entry.path().generic_u8string();
        TFormDocument Document = ReadFormFile({Full.begin(), Full.end()});
        std::erase_if(Document.Root.Children(),
                      [](const TFormObject& Child) { return IsTranslatorClass(Child.ClassName()); });
        Folder.Write({Name.begin(), Name.end()}, WriteForm(Document));
    }
    Folder.Write("DemoTexts.inc", ReadWholeFile(DEMO_FORMS "/../DemoTexts.inc"));
}
