// Globalizes projects: puts translators on their forms and fills them with the texts
// found. Start here; a wizard or command does it in four steps:
//
//     RecoverProject(Project.FileName);                          framework/design/ProjectWriter.h
//     const TProjectScan Scan = ScanProject(Project, CodePage);  ProjectScan.h
//     const TProjectChanges Changes = PlanGlobalization(Scan, Choices);
//     WriteChanges(Changes);
//
// Nothing on disk changes before the last step, and then all of it or nothing.
// Dictionaries.h does the same for dictionaries of the whole project.
#pragma once

#include <string>
#include <vector>

#include "wizard/ProjectEdit.h"

struct TGlobalizeChoices {
    // The languages to carry, as decimal Windows locale identifiers, and the one that
    // the project is written in.
    std::vector<int> Locales;
    int OwnLocale = 1033;

    bool Forms = true;         // form translators on all forms
    bool ScanForms = true;     // with the texts that the forms show
    bool Resources = true;     // resource translators, when units declare resource strings
    bool CommonDialogs = true; // dialog translators on forms with dialogs, and a button translator
    // The form with the locale, button and resource translators; empty: the project's.
    std::string MainForm;
    // Where the translations of new translators are kept, relative to the project file's
    // folder; empty: in the forms.
    std::string TranslationsFile;
    // A component on the main form that becomes the language selector; empty: none.
    std::string Selector;
};

// What globalizing changes. Translators that are there keep their place, their
// storage and every translation; they get the texts that they lack, and languages that
// are not in Choices stay. So planning for what is globalized already changes nothing.
//
// Frames are left alone: a locale translator does not switch what is on them; and so are
// data modules without texts. A form that descends from another form of the project
// gets that one's translators, with its own texts.
//
// Throws EReadError with the errors of the scan; EInvalidOperation for choices that
// do not fit the project; EFormFileError, and EConvertError for a translations file in
// UTF-16.
TProjectChanges PlanGlobalization(TProjectScan Scan, const TGlobalizeChoices& Choices);

// Carries out a plan. Throws as WriteProjectFiles; EAbort when Progress says so: all is
// as it was then.
void WriteChanges(const TProjectChanges& Changes, const TProjectProgress& Progress = {});
