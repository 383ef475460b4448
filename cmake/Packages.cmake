# Debian packages of the three installed parts; tools/make-packages makes them.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME voranplot5)
set(CPACK_PACKAGE_VENDOR "The VORANPlot developers")
# Each package has a summary of its own.
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")
set(CPACK_PACKAGE_CONTACT "The VORANPlot developers <developers@voranplot.invalid>")
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_BINARY_DIR}/packages)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_ALL runtime dev)
if(VORAN_VIEWER)
    list(APPEND CPACK_COMPONENTS_ALL viewer)
endif()

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR}/src)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(voran_same_library "libvoranplot5-1 (= ${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE})")

set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME libvoranplot5-1)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
# The icons of the tool bars are SVG, which Qt shows with a plugin.
set(CPACK_DEBIAN_RUNTIME_PACKAGE_DEPENDS libqt5svg5)
set(CPACK_DEBIAN_RUNTIME_DESCRIPTION "interactive 3-D plot widgets for Qt 5
Surfaces, point clouds, polygon meshes, histograms and families of spectra
inside a coordinate box with axes, title and colour legend, turned and
zoomed with mouse and keys.")

set(CPACK_DEBIAN_DEV_PACKAGE_NAME libvoranplot5-dev)
set(CPACK_DEBIAN_DEV_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEV_PACKAGE_DEPENDS
    "${voran_same_library}, qtbase5-dev (>= 5.15), libqt5opengl5-dev (>= 5.15), libgl-dev")
set(CPACK_DEBIAN_DEV_DESCRIPTION "interactive 3-D plot widgets for Qt 5, for building programs
Headers, CMake package, pkg-config file and the plugin that puts the plots
into the widget box of Qt Designer.")

set(CPACK_DEBIAN_VIEWER_PACKAGE_NAME voranview)
set(CPACK_DEBIAN_VIEWER_PACKAGE_SECTION science)
set(CPACK_DEBIAN_VIEWER_PACKAGE_DEPENDS "${voran_same_library}")
# The words of Qt's own dialogs in the person's language.
set(CPACK_DEBIAN_VIEWER_PACKAGE_RECOMMENDS qttranslations5-l10n)
set(CPACK_DEBIAN_VIEWER_DESCRIPTION "viewer for elevation grids, meshes and spectra
Shows grids that GDAL reads, polygon meshes, tables of spectra and formulas
as turnable 3-D plots.")
include(CPack)
