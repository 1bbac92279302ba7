# orbilex_header_library(NAME HEADER): a header-only library of the build machine,
# usable when cross-compiling too, where its folder as a whole must not be searched.
function(orbilex_header_library Name Folder)
    find_path(${Name}_ROOT ${Folder} PATHS /usr/include NO_CMAKE_FIND_ROOT_PATH REQUIRED)
    file(COPY ${${Name}_ROOT}/${Folder} DESTINATION ${CMAKE_BINARY_DIR}/include)
    add_library(${Name} INTERFACE)
    target_include_directories(${Name} SYSTEM INTERFACE ${CMAKE_BINARY_DIR}/include)
endfunction()
