# What ./dev install puts under its prefix: libraries, public headers, skins, the CMake package, the pkg-config file.
include(CMakePackageConfigHelpers)

set(zr_cmake_dir ${CMAKE_INSTALL_LIBDIR}/cmake/zrwidget)
set(zr_header_dir ${CMAKE_INSTALL_INCLUDEDIR}/zrwidget)
set(zr_data_dir ${CMAKE_INSTALL_DATADIR}/zrwidget)
set(zr_host_names zrdefine zrcm zrskin zrmsg zrevent zrplugin zrbase zrutils zrdatabase zrbusinessdata zrcore)

target_include_directories(zr_hostapi INTERFACE $<INSTALL_INTERFACE:${zr_header_dir}/hostapi>)
target_include_directories(zrwidget INTERFACE $<INSTALL_INTERFACE:${zr_header_dir}>)

# The public headers of the flat folder: no private ones, and none that only another layer of ours includes.
file(GLOB zr_public_headers CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/shell/zrwidget/*.h)
list(FILTER zr_public_headers EXCLUDE REGEX "_p\\.h$")
# A host connects to the signals of a plugin's private object.
list(APPEND zr_public_headers ${PROJECT_SOURCE_DIR}/shell/zrwidget/ZrPluginBaseWidget_p.h)
install(FILES ${zr_public_headers} DESTINATION ${zr_header_dir})

set_target_properties(zrwidget PROPERTIES INSTALL_RPATH "$ORIGIN")
install(TARGETS zrwidget zr_hostapi EXPORT zrwidgetTargets
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})

if(ZR_HOST STREQUAL "reference")
    install(DIRECTORY ${PROJECT_SOURCE_DIR}/hostapi/ DESTINATION ${zr_header_dir}/hostapi FILES_MATCHING PATTERN "*.h")
    install(FILES ${PROJECT_SOURCE_DIR}/host/ZrReferenceHost.h DESTINATION ${zr_header_dir}/host)
    # What the plugin files are made of that the reference host loads from a folder.
    install(FILES ${PROJECT_SOURCE_DIR}/host/zrcore/ZrCorePlugin.h DESTINATION ${zr_header_dir}/host/zrcore)
    target_include_directories(zrreferencehost INTERFACE $<INSTALL_INTERFACE:${zr_header_dir}/host>)
    set_target_properties(zrreferencehost PROPERTIES EXPORT_NAME referencehost)
    set_target_properties(${zr_host_names} zrreferencehost PROPERTIES INSTALL_RPATH "$ORIGIN")
    install(TARGETS ${zr_host_names} zrreferencehost EXPORT zrwidgetTargets
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})
    install(DIRECTORY ${PROJECT_SOURCE_DIR}/skin ${PROJECT_SOURCE_DIR}/data DESTINATION ${zr_data_dir} OPTIONAL)
    if(TARGET zrworkstation)
        install(TARGETS zrworkstation RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
        set_target_properties(zrworkstation PROPERTIES INSTALL_RPATH "$ORIGIN/../${CMAKE_INSTALL_LIBDIR}")
    endif()
endif()

if(ZR_HOST STREQUAL "reference")
    install(EXPORT zrwidgetTargets NAMESPACE zrwidget:: DESTINATION ${zr_cmake_dir})
    configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/zrwidgetConfig.cmake.in
        ${CMAKE_CURRENT_BINARY_DIR}/zrwidgetConfig.cmake INSTALL_DESTINATION ${zr_cmake_dir}
        PATH_VARS zr_data_dir)
    write_basic_package_version_file(${CMAKE_CURRENT_BINARY_DIR}/zrwidgetConfigVersion.cmake COMPATIBILITY SameMinorVersion)
    install(FILES ${CMAKE_CURRENT_BINARY_DIR}/zrwidgetConfig.cmake ${CMAKE_CURRENT_BINARY_DIR}/zrwidgetConfigVersion.cmake
        ${PROJECT_SOURCE_DIR}/cmake/ZrPlugin.cmake ${PROJECT_SOURCE_DIR}/cmake/ZrSealFile.cmake
        DESTINATION ${zr_cmake_dir})
endif()
configure_file(${PROJECT_SOURCE_DIR}/cmake/zrwidget.pc.in ${CMAKE_CURRENT_BINARY_DIR}/zrwidget.pc @ONLY)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/zrwidget.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
