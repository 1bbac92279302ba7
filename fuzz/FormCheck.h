// What must hold for every form file that a reader accepts.
#pragma once

#include <cstdlib>
#include <iostream>

#include "framework/streaming/FormBinary.h"
#include "framework/streaming/FormText.h"

inline void Require(bool Condition, const char* What)
{
    if (Condition)
        return;
    std::cerr << "failed: " << What << '\n';
    std::abort();
}

// Writing may refuse a name that the other format cannot hold; whatever is
// written must read back as the same tree.
inline void CheckText(const TFormDocument& Document, const TFormTextProfile& Profile)
{
    TFormFileOptions Options;
    Options.CodePage = Profile.CodePage;
    Options.DetectUtf8 = Profile.Encoding != TFormEncoding::CodePage;
    std::string Text;
    try {
        Text = WriteFormText(Document, Profile);
    } catch (const EFormFileError&) {
        return;
    }
    Require(ReadFormText(Text, Options).SameTree(Document), "text reads back as the same tree");
}

inline void CheckBinary(const TFormDocument& Document, const TFormBinaryProfile& Profile)
{
    TFormFileOptions Options;
    Options.CodePage = Profile.CodePage;
    std::string Bytes;
    try {
        Bytes = WriteFormBinary(Document, Profile);
    } catch (const EFormFileError&) {
        return;
    }
    Require(ReadFormBinary(Bytes, Options).SameTree(Document), "binary reads back as the same tree");
}

inline void CheckDocument(const TFormDocument& Document, std::string_view Input)
{
    const bool IsText = Document.Format == TFormFormat::Text;
    Require((IsText ? WriteFormText(Document) : WriteFormBinary(Document)) == Input,
            "an unchanged document is written byte for byte");
    TFormDocument Bare = Document;
    Bare.Source = nullptr;
    CheckText(Bare, Bare.Text);
    CheckText(Bare, TFormTextProfile{});
    CheckText(Bare, TFormTextProfile::Lfm());
    CheckBinary(Bare, Bare.Binary);
    Bare.KeepSpelling(Document);
    Require((IsText ? WriteFormText(Bare) : WriteFormBinary(Bare)) == Input,
            "a document that keeps the spelling of itself is written byte for byte");
}
