# What is installed, in three parts: runtime (the library), dev (what programs are built with), viewer.
include(CMakePackageConfigHelpers)

set(VORAN_CMAKE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/VORANPlot5)
set(VORAN_PC_DIR ${CMAKE_INSTALL_LIBDIR}/pkgconfig)

install(TARGETS VORANPlot5 EXPORT VORANPlot5Targets
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime NAMELINK_COMPONENT dev
    INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})

# The generated folders hold nothing but what is to be installed.
install(DIRECTORY ${VORAN_FORWARDING_DIR} ${VORAN_INSTALLED_DIR}
    DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT dev)

install(EXPORT VORANPlot5Targets NAMESPACE VORANPlot5:: DESTINATION ${VORAN_CMAKE_DIR} COMPONENT dev)
configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/VORANPlot5Config.cmake.in
    ${PROJECT_BINARY_DIR}/VORANPlot5Config.cmake INSTALL_DESTINATION ${VORAN_CMAKE_DIR})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/VORANPlot5ConfigVersion.cmake
    COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/VORANPlot5Config.cmake ${PROJECT_BINARY_DIR}/VORANPlot5ConfigVersion.cmake
    DESTINATION ${VORAN_CMAKE_DIR} COMPONENT dev)

# The file finds its prefix from its own place, so that the installed files can be moved.
file(RELATIVE_PATH VORAN_PC_TO_PREFIX ${CMAKE_INSTALL_PREFIX}/${VORAN_PC_DIR} ${CMAKE_INSTALL_PREFIX})
string(REGEX REPLACE "/$" "" VORAN_PC_TO_PREFIX ${VORAN_PC_TO_PREFIX})
configure_file(${CMAKE_CURRENT_LIST_DIR}/VORANPlot5.pc.in ${PROJECT_BINARY_DIR}/VORANPlot5.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/VORANPlot5.pc DESTINATION ${VORAN_PC_DIR} COMPONENT dev)

# The licence, and the terms of the colour tables from others, go with every part.
install(FILES packaging/copyright packaging/Apache-2.0.txt
    DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/libvoranplot5-1 COMPONENT runtime)
install(FILES packaging/copyright DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/libvoranplot5-dev COMPONENT dev)

if(VORAN_VIEWER)
    if(NOT CMAKE_INSTALL_PREFIX STREQUAL "/usr")
        file(RELATIVE_PATH voran_lib_from_bin ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_LIBDIR})
        set_target_properties(voranview PROPERTIES INSTALL_RPATH "$ORIGIN/${voran_lib_from_bin}")
    endif()
    install(TARGETS voranview RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT viewer)
    install(FILES packaging/voranview.desktop
        DESTINATION ${CMAKE_INSTALL_DATADIR}/applications COMPONENT viewer)
    install(FILES packaging/voranview.xml
        DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages COMPONENT viewer)
    install(FILES resources/plot/images/voranview.svg
        DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps COMPONENT viewer)
    install(FILES packaging/copyright DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/voranview COMPONENT viewer)
    install(FILES packaging/voranview.bash-completion RENAME voranview
        DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions COMPONENT viewer)
    set(voran_man ${PROJECT_BINARY_DIR}/voranview.1)
    configure_file(packaging/voranview.1.in ${voran_man} @ONLY)
    add_custom_command(OUTPUT ${voran_man}.gz COMMAND gzip -9nkf ${voran_man} DEPENDS ${voran_man})
    add_custom_target(voranview_man ALL DEPENDS ${voran_man}.gz)
    install(FILES ${voran_man}.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT viewer)
endif()
