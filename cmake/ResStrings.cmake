# String tables of programs and libraries.
#
# orbilex_resource_strings(TARGET FILE.inc): the texts of an application, as
# docs/resource-strings.md tells. The target gets the header FILE.h with one
# TResStringRec a row, and the module that it is linked into gets the texts.
#
# orbilex_language_module(TARGET FILE.inc...): a library that holds nothing but
# texts, for LoadResourceLanguage (framework/rtl/Modules.h). Set its OUTPUT_NAME to
# the program's name and its SUFFIX to ".DEU" or whatever the language is.

set(ORBILEX_MODULE_STRINGS_SOURCE ${CMAKE_CURRENT_LIST_DIR}/ModuleStrings.cpp.in CACHE INTERNAL "")

# Writes the source that holds the texts of File, and gives its name. A change of
# File changes its sum in the source: resource compilers tell nobody what they read.
function(orbilex_string_table_source Result Folder File)
    get_filename_component(Name ${File} NAME_WE)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${File})
    file(SHA256 ${File} Sum)
    set(Include ${File})
    if(ARGN)
        set(Include ${ARGN})
    endif()
    if(WIN32)
        set(Source ${Folder}/${Name}.rc)
        set(Text "// ${Sum}
#pragma code_page(65001)
STRINGTABLE
BEGIN
#define ORBILEX_TEXT(Name, Identifier, Text) Identifier, Text
#include \"${Include}\"
END
")
    else()
        set(Source ${Folder}/${Name}Table.cpp)
        set(Text "// ${Sum}
#include \"platform/portable/StringTable.h\"

namespace {

constexpr TStringRow Rows[] = {
#define ORBILEX_TEXT(Name, Identifier, Text) {Identifier, Text},
#include \"${Include}\"
};
ORBILEX_STRING_TABLE(Rows)

} // namespace
")
    endif()
    file(CONFIGURE OUTPUT ${Source} CONTENT "${Text}" @ONLY)
    set(${Result} ${Source} PARENT_SCOPE)
endfunction()

# Puts Source into the modules that Target is linked into: itself, or for a static
# library, whose objects a linker may leave out, the programs that use it. The
# third argument is where Source is installed.
function(orbilex_add_string_table Target Source)
    get_target_property(Type ${Target} TYPE)
    set_property(TARGET ${Target} APPEND PROPERTY ORBILEX_STRING_TABLES ${Source})
    if(Type STREQUAL STATIC_LIBRARY)
        foreach(Kind EXECUTABLE SHARED_LIBRARY MODULE_LIBRARY)
            set(InKind "$<STREQUAL:$<TARGET_PROPERTY:TYPE>,${Kind}>")
            target_sources(${Target} INTERFACE "$<BUILD_INTERFACE:$<${InKind}:${Source}>>")
            if(ARGN)
                target_sources(${Target} INTERFACE "$<INSTALL_INTERFACE:$<${InKind}:$<INSTALL_PREFIX>/${ARGN}>>")
            endif()
        endforeach()
    else()
        target_sources(${Target} PRIVATE ${Source})
    endif()
endfunction()

# Identifiers 61440 and above are the framework's. A block of 16 (N to N + 15, N a
# multiple of 16) must not be spread over two files of one module.
function(orbilex_check_identifiers File)
    file(STRINGS ${File} Rows REGEX "^ORBILEX_TEXT\\(")
    foreach(Row ${Rows})
        if(NOT Row MATCHES "^ORBILEX_TEXT\\([A-Za-z_][A-Za-z0-9_]*, *([0-9]+),")
            message(FATAL_ERROR "${File}: a row is ORBILEX_TEXT(Name, identifier, \"text\") in one line: ${Row}")
        endif()
        if(CMAKE_MATCH_1 LESS 32768 OR CMAKE_MATCH_1 GREATER 61439)
            message(FATAL_ERROR "${File}: identifiers are from 32768 to 61439: ${Row}")
        endif()
    endforeach()
endfunction()

# A third argument is the folder, below the installed headers, where FILE lies for
# those who use the target installed.
function(orbilex_resource_strings Target File)
    get_filename_component(File ${File} ABSOLUTE)
    get_filename_component(Name ${File} NAME_WE)
    set(Made ${CMAKE_CURRENT_BINARY_DIR}/${Target}.strings)
    orbilex_check_identifiers(${File})
    file(CONFIGURE OUTPUT ${Made}/${Name}.h CONTENT "// The texts of ${Name}.inc.
#pragma once

#include \"framework/rtl/ResStrings.h\"

#define ORBILEX_TEXT(Name, Identifier, Text) extern const TResStringRec Name;
#include \"${File}\"
#undef ORBILEX_TEXT
")
    file(CONFIGURE OUTPUT ${Made}/${Name}.cpp CONTENT "#include \"${Name}.h\"

#include \"platform/OwnModule.h\"

static constinit HINSTANCE Module = OwnModule;

#define ORBILEX_TEXT(Name, Identifier, Text) constinit const TResStringRec Name{&Module, Identifier};
#include \"${File}\"
#undef ORBILEX_TEXT
")
    target_sources(${Target} PRIVATE ${Made}/${Name}.cpp)
    target_include_directories(${Target} PUBLIC $<BUILD_INTERFACE:${Made}>)
    if(ARGN)
        orbilex_string_table_source(Source ${Made} ${File} ${ARGV2}/${Name}.inc)
        get_filename_component(SourceName ${Source} NAME)
        orbilex_add_string_table(${Target} ${Source} ${CMAKE_INSTALL_INCLUDEDIR}/orbilex/${ARGV2}/${SourceName})
        install(FILES ${Source} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/orbilex/${ARGV2})
        install(FILES ${Made}/${Name}.h DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/orbilex/${ARGV2})
    else()
        orbilex_string_table_source(Source ${Made} ${File})
        orbilex_add_string_table(${Target} ${Source})
    endif()
endfunction()

function(orbilex_language_module Target)
    set(Made ${CMAKE_CURRENT_BINARY_DIR}/${Target}.strings)
    configure_file(${ORBILEX_MODULE_STRINGS_SOURCE} ${Made}/ModuleStrings.cpp COPYONLY)
    add_library(${Target} MODULE ${Made}/ModuleStrings.cpp)
    set_target_properties(${Target} PROPERTIES PREFIX "" CXX_VISIBILITY_PRESET hidden)
    if(TARGET orbilex_options)
        target_link_libraries(${Target} PRIVATE orbilex_options)
    else()
        target_link_libraries(${Target} PRIVATE Orbilex::orbilex_options)
    endif()
    foreach(File ${ARGN})
        get_filename_component(File ${File} ABSOLUTE)
        orbilex_string_table_source(Source ${Made} ${File})
        target_sources(${Target} PRIVATE ${Source})
    endforeach()
endfunction()
