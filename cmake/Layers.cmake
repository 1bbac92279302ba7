# orbilex_layer(NAME [folder...]): a static library of all sources in the given
# folders, or in the calling one.
function(orbilex_layer Name)
    set(Folders ${ARGN})
    if(NOT Folders)
        set(Folders .)
    endif()
    set(Sources)
    foreach(Folder ${Folders})
        file(GLOB Found CONFIGURE_DEPENDS ${Folder}/*.cpp ${Folder}/*.h)
        list(APPEND Sources ${Found})
    endforeach()
    add_library(${Name} STATIC ${Sources})
    set_target_properties(${Name} PROPERTIES LINKER_LANGUAGE CXX)
    target_link_libraries(${Name} PUBLIC orbilex_options)
endfunction()

# orbilex_take_in(TARGET layers...): the shared library holds these layers whole, with
# their texts, but not what they themselves are built on.
function(orbilex_take_in Target)
    set(Files)
    foreach(Layer ${ARGN})
        list(APPEND Files $<TARGET_FILE:${Layer}>)
        get_target_property(Tables ${Layer} ORBILEX_STRING_TABLES)
        if(Tables)
            target_sources(${Target} PRIVATE ${Tables})
        endif()
        target_include_directories(${Target} PUBLIC $<TARGET_PROPERTY:${Layer},INTERFACE_INCLUDE_DIRECTORIES>)
        target_compile_definitions(${Target} PUBLIC $<TARGET_PROPERTY:${Layer},INTERFACE_COMPILE_DEFINITIONS>)
    endforeach()
    add_dependencies(${Target} ${ARGN})
    set_property(TARGET ${Target} APPEND PROPERTY LINK_DEPENDS ${Files})
    target_link_libraries(${Target} PRIVATE -Wl,--whole-archive ${Files} -Wl,--no-whole-archive)
    set_target_properties(${Target} PROPERTIES LIBRARY_OUTPUT_DIRECTORY ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})
endfunction()

# The DLLs of the C++ runtime.
function(orbilex_runtime_files Result)
    set(Files)
    foreach(Name libstdc++-6.dll libgcc_s_seh-1.dll libwinpthread-1.dll)
        execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${Name} OUTPUT_VARIABLE File
                        OUTPUT_STRIP_TRAILING_WHITESPACE)
        list(APPEND Files ${File})
    endforeach()
    set(${Result} ${Files} PARENT_SCOPE)
endfunction()

# Puts the DLLs of the C++ runtime, which modules of one program share, beside the programs.
function(orbilex_shared_runtime Target)
    if(NOT WIN32)
        return()
    endif()
    orbilex_runtime_files(Files)
    foreach(File ${Files})
        add_custom_command(TARGET ${Target} POST_BUILD COMMAND ${CMAKE_COMMAND} -E copy_if_different ${File}
                                                               ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})
    endforeach()
endfunction()
