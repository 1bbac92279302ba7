#include "core/TranslatorEditors.h"

#include <map>

#include "framework/rtl/FormatText.h"
#include "framework/rtl/RtlConsts.h"
#include "framework/rtl/SysUtils.h"

namespace {

std::map<const TMetaClass*, TTranslatorEditor>& Editors()
{
    static std::map<const TMetaClass*, TTranslatorEditor> Instance;
    return Instance;
}

} // namespace

void SetTranslatorEditor(const TMetaClass& Kind, TTranslatorEditor Editor)
{
    if (Editor)
        Editors()[&Kind] = Editor;
    else
        Editors().erase(&Kind);
}

TTranslatorEditor GetTranslatorEditor(const TMetaClass& Kind)
{
    const auto Found = Editors().find(&Kind);
    if (Found == Editors().end())
        throw EClassNotFound(Format(SClassNotFound, {Kind.ClassName() + "Editor"}));
    return Found->second;
}
