#include "framework/rtl/Persistent.h"

#include "framework/rtl/DynamicProps.h"
#include "framework/rtl/Exceptions.h"
#include "framework/rtl/RtlConsts.h"
#include "framework/rtl/SysUtils.h"

const TMetaClass& TPersistent::MetaClass()
{
    static const TMetaClass Class("TPersistent", &TObject::MetaClass(), nullptr);
    return Class;
}

TPersistent::TPersistent() = default;
TPersistent::~TPersistent() = default;

const TMetaClass& TPersistent::ClassType() const
{
    return FDynamic && FDynamic->Class() ? *FDynamic->Class() : DeclaredClass();
}

void TPersistent::Assign(const TPersistent* Source)
{
    throw EConvertError(
        Format(SAssignError, {Source ? Source->ClassName() : std::string("nil"), ClassName()}));
}

void TPersistent::DefineProperties(TFiler&) {}

TDynamicProperties& TPersistent::NeedDynamicProperties()
{
    if (!FDynamic)
        FDynamic = std::make_unique<TDynamicProperties>(*this);
    return *FDynamic;
}
