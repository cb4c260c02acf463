# Installation and the exported CMake package: a client writes
#     find_package(OrxBase)
#     target_link_libraries(app PRIVATE orx::base)
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(ORX_PACKAGE_DIR "${CMAKE_INSTALL_LIBDIR}/cmake/OrxBase")

install(TARGETS orx_base EXPORT OrxBaseTargets
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})

install(DIRECTORY "${PROJECT_SOURCE_DIR}/orx/" DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/orx
    FILES_MATCHING PATTERN "*.h"
    PATTERN "win32" EXCLUDE
    PATTERN "posix" EXCLUDE)

if(WIN32)
    install(FILES ${ORX_MINGW_RUNTIME_DLLS} DESTINATION ${CMAKE_INSTALL_BINDIR})
endif()

install(EXPORT OrxBaseTargets NAMESPACE orx:: DESTINATION ${ORX_PACKAGE_DIR})

configure_package_config_file(cmake/OrxBaseConfig.cmake.in
    "${PROJECT_BINARY_DIR}/OrxBaseConfig.cmake"
    INSTALL_DESTINATION ${ORX_PACKAGE_DIR}
    PATH_VARS CMAKE_INSTALL_BINDIR)
write_basic_package_version_file("${PROJECT_BINARY_DIR}/OrxBaseConfigVersion.cmake"
    COMPATIBILITY SameMajorVersion)
install(FILES
    "${PROJECT_BINARY_DIR}/OrxBaseConfig.cmake"
    "${PROJECT_BINARY_DIR}/OrxBaseConfigVersion.cmake"
    DESTINATION ${ORX_PACKAGE_DIR})
