# `cmake --install` gives applications find_package(Orbilex) with the target
# Orbilex::orbilex_package, or that of one translator (orbilex_qft), which brings the
# layers below, or Orbilex::orbilex_editors with the editors too. The designer with all
# that it needs is in lib/orbilex.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

install(TARGETS orbilex_options orbilex_platform orbilex_framework orbilex_core orbilex_qft
        orbilex_qrt orbilex_qct orbilex_qbt orbilex_qlt orbilex_package orbilex_editors orbilex_wizard
        EXPORT OrbilexTargets
        INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/orbilex)
foreach(Layer platform framework core Qft Qrt Qct Qbt Qlt Obxc3 editors wizard)
    install(DIRECTORY ${Layer} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/orbilex
            FILES_MATCHING PATTERN "*.h" PATTERN "*.inc")
endforeach()
if(TARGET orbilex)
    install(TARGETS orbilex)
endif()
install(EXPORT OrbilexTargets NAMESPACE Orbilex:: DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/Orbilex)
configure_package_config_file(cmake/OrbilexConfig.cmake.in ${CMAKE_BINARY_DIR}/OrbilexConfig.cmake
                              INSTALL_DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/Orbilex)
write_basic_package_version_file(${CMAKE_BINARY_DIR}/OrbilexConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${CMAKE_BINARY_DIR}/OrbilexConfig.cmake ${CMAKE_BINARY_DIR}/OrbilexConfigVersion.cmake
              cmake/Forms.cmake cmake/ResStrings.cmake cmake/ModuleStrings.cpp.in
              cmake/Program.cmake cmake/program.rc cmake/program.manifest
        DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/Orbilex)

set(Home ${CMAKE_INSTALL_LIBDIR}/orbilex)
set_target_properties(designer orbilex_module PROPERTIES INSTALL_RPATH $ORIGIN)
install(TARGETS designer orbilex_environment orbilex_module RUNTIME DESTINATION ${Home} LIBRARY DESTINATION ${Home})
install(FILES editors/editors.lng DESTINATION ${Home})
install(DIRECTORY docs/help DESTINATION ${Home})
if(WIN32)
    orbilex_runtime_files(Files)
    install(FILES ${Files} DESTINATION ${Home})
endif()
