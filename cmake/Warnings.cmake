# Every target of the project is built with these; a warning is an error.
add_library(orbilex_options INTERFACE)
target_compile_features(orbilex_options INTERFACE cxx_std_20)
target_include_directories(orbilex_options INTERFACE $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}>)
target_compile_options(orbilex_options INTERFACE $<BUILD_INTERFACE:-Wall;-Wextra;-Wpedantic;-Wshadow;-Wnon-virtual-dtor;-Woverloaded-virtual;-Wimplicit-fallthrough;-Werror>)
# Method pointers of all signatures are kept in one type (framework/rtl/Method.h).
target_compile_options(orbilex_options INTERFACE $<BUILD_INTERFACE:-Wno-cast-function-type>)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # GCC 12 reports these two falsely on inlined std::string code.
    target_compile_options(orbilex_options INTERFACE $<BUILD_INTERFACE:-Wno-restrict;-Wno-maybe-uninitialized>)
endif()
if(ORBILEX_SANITIZE)
    target_compile_options(orbilex_options INTERFACE -fsanitize=${ORBILEX_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer -O1)
    target_link_options(orbilex_options INTERFACE -fsanitize=${ORBILEX_SANITIZE})
endif()
