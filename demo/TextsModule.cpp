#include "demo/TextsModule.h"

TTextsModule* TextsModule = nullptr;

const TMetaClass& TTextsModule::MetaClass()
{
    static const TMetaClass Class("TTextsModule", &TDataModule::MetaClass(), CreateComponent<TTextsModule>);
    return Class;
}
