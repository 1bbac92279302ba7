# orbilex_embed_forms(TARGET FOLDER): compiles the text form files FOLDER/*.dfm into
# the target, one source per file, made anew at build time when the file changes.
# The target (orbilex_some_forms) gets the header orbilex_some_forms.h with
#     void RegisterOrbilexSomeForms();
# which makes the files known to their classes (framework/forms/FormResources.h).

# As a script: cmake -DFORM=file -DSOURCE=file -DFUNCTION=name -P Forms.cmake
if(CMAKE_SCRIPT_MODE_FILE)
    file(STRINGS ${FORM} FirstLine LIMIT_COUNT 1)
    if(NOT FirstLine MATCHES "^(object|inherited) +[A-Za-z0-9_]+ *: *([A-Za-z0-9_]+)")
        message(FATAL_ERROR "${FORM}:1: no text form file")
    endif()
    set(Class ${CMAKE_MATCH_2})
    file(READ ${FORM} Bytes HEX)
    string(LENGTH "${Bytes}" Digits)
    math(EXPR Size "${Digits} / 2")
    string(REGEX REPLACE "(..)" "'\\\\x\\1'," Bytes "${Bytes}")
    string(REGEX REPLACE "([^,]*,[^,]*,[^,]*,[^,]*,[^,]*,[^,]*,[^,]*,[^,]*,[^,]*,[^,]*,[^,]*,[^,]*,)" "\\1\n" Bytes "${Bytes}")
    file(WRITE ${SOURCE} "#include \"framework/forms/FormResources.h\"\n
static const char Text[] = {\n${Bytes}};\n
void ${FUNCTION}();
void ${FUNCTION}()
{
    RegisterFormResource(\"${Class}\", std::string_view(Text, ${Size}));
}
")
    return()
endif()

set(ORBILEX_FORMS_SCRIPT ${CMAKE_CURRENT_LIST_FILE} CACHE INTERNAL "")

function(orbilex_embed_forms Target Folder)
    set(Made ${CMAKE_CURRENT_BINARY_DIR}/${Target}.forms)
    string(REGEX MATCHALL "[a-z0-9]+" Words ${Target})
    set(Function Register)
    foreach(Word ${Words})
        string(SUBSTRING ${Word} 0 1 First)
        string(SUBSTRING ${Word} 1 -1 Rest)
        string(TOUPPER ${First} First)
        string(APPEND Function ${First}${Rest})
    endforeach()
    set(Declarations)
    set(Calls)
    file(GLOB Forms CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${Folder}/*.dfm)
    foreach(Form ${Forms})
        get_filename_component(Name ${Form} NAME_WE)
        add_custom_command(
            OUTPUT ${Made}/${Name}.cpp
            COMMAND ${CMAKE_COMMAND} -DFORM=${Form} -DSOURCE=${Made}/${Name}.cpp -DFUNCTION=${Function}${Name} -P
                    ${ORBILEX_FORMS_SCRIPT}
            DEPENDS ${Form} ${ORBILEX_FORMS_SCRIPT}
            VERBATIM)
        target_sources(${Target} PRIVATE ${Made}/${Name}.cpp)
        string(APPEND Declarations "void ${Function}${Name}();\n")
        string(APPEND Calls "    ${Function}${Name}();\n")
    endforeach()
    file(CONFIGURE OUTPUT ${Made}/${Target}.h
         CONTENT "#pragma once\n\n// Makes the form files of ${Target} known to their classes.\nvoid ${Function}();\n")
    file(CONFIGURE OUTPUT ${Made}/${Target}.cpp
         CONTENT "#include \"${Target}.h\"\n\n${Declarations}\nvoid ${Function}()\n{\n${Calls}}\n")
    target_sources(${Target} PRIVATE ${Made}/${Target}.cpp)
    target_include_directories(${Target} PUBLIC $<BUILD_INTERFACE:${Made}>)
endfunction()
