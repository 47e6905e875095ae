# "cpack" in the build folder writes three Debian packages, one per component. They are the same for
# the same sources and compiler when SOURCE_DATE_EPOCH is set: see tools/package.sh.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME vexconvert)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT
  "Vex convert formats maintainers <maintainers@users.noreply.c-seed-937763be.example>")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_COMPONENTS_ALL runtime dev app)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS
  ${PROJECT_BINARY_DIR}/formats ${PROJECT_BINARY_DIR}/utility)

set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME libvexconvertformats1)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_RUNTIME_DESCRIPTION "output formats and presets of a media converter
Turns an export catalogue of formats and presets into list models for QML,
keeps the recently used and the user's own presets, and finds the preset that
fits a bitrate, a name or a resolution.")

set(CPACK_DEBIAN_DEV_PACKAGE_NAME libvexconvertformats-dev)
set(CPACK_DEBIAN_DEV_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEV_PACKAGE_DEPENDS
  "libvexconvertformats1 (= ${PROJECT_VERSION}), qtbase5-dev, qtdeclarative5-dev")
set(CPACK_DEBIAN_DEV_DESCRIPTION "output formats and presets of a media converter, headers
What is needed to build programs with libVexConvertFormats: headers, and
packages for CMake and pkg-config.")

set(CPACK_DEBIAN_APP_PACKAGE_NAME vexconvert)
set(CPACK_DEBIAN_APP_PACKAGE_SECTION video)
string(JOIN ", " CPACK_DEBIAN_APP_PACKAGE_DEPENDS
  "libvexconvertformats1 (= ${PROJECT_VERSION})" ffmpeg libqt5svg5
  qml-module-qtqml qml-module-qtquick2 qml-module-qtquick-window2 qml-module-qtquick-controls2
  qml-module-qtquick-templates2 qml-module-qtquick-layouts qml-module-qt-labs-settings
  qml-module-qtgraphicaleffects)
set(CPACK_DEBIAN_APP_PACKAGE_RECOMMENDS "fonts-dejavu-core, qttranslations5-l10n")
set(CPACK_DEBIAN_APP_DESCRIPTION "convert video and audio files with presets
Converts with ffmpeg, in a window or on the command line. Every file can have
a format of its own and can be trimmed; folders can be watched.")

# What Debian expects in every package.
set(documents ${PROJECT_BINARY_DIR}/package)
configure_file(${PROJECT_SOURCE_DIR}/LICENSE ${documents}/copyright COPYONLY)
execute_process(COMMAND gzip -9nc ${PROJECT_SOURCE_DIR}/cmake/debian/changelog
  OUTPUT_FILE ${documents}/changelog.gz)
foreach(component runtime dev app)
  string(TOUPPER ${component} name)
  set(folder share/doc/${CPACK_DEBIAN_${name}_PACKAGE_NAME})
  install(FILES ${documents}/copyright ${documents}/changelog.gz
    DESTINATION ${folder} COMPONENT ${component})
endforeach()
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA
  ${PROJECT_SOURCE_DIR}/cmake/debian/shlibs ${PROJECT_SOURCE_DIR}/cmake/debian/triggers)
install(FILES ${PROJECT_SOURCE_DIR}/cmake/debian/overrides COMPONENT runtime
  DESTINATION share/lintian/overrides RENAME ${CPACK_DEBIAN_RUNTIME_PACKAGE_NAME})
include(CPack)
