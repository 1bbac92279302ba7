# orbilex_program(NAME sources...): a program that, on Windows, carries the
# manifest which makes UTF-8 the process code page, and needs no DLL of its compiler.
set(ORBILEX_PROGRAM_RESOURCES ${CMAKE_CURRENT_LIST_DIR}/program.rc CACHE INTERNAL "")

function(orbilex_program Name)
    add_executable(${Name} ${ARGN})
    if(WIN32)
        target_sources(${Name} PRIVATE ${ORBILEX_PROGRAM_RESOURCES})
        target_link_options(${Name} PRIVATE $<$<CXX_COMPILER_ID:GNU,Clang>:-static>)
    endif()
endfunction()
