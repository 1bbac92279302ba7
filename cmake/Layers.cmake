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

# orbilex_program(NAME sources...): a program that, on Windows, carries the
# manifest which makes UTF-8 the process code page.
function(orbilex_program Name)
    add_executable(${Name} ${ARGN})
    if(WIN32)
        target_sources(${Name} PRIVATE ${PROJECT_SOURCE_DIR}/platform/windows/program.rc)
    endif()
endfunction()
