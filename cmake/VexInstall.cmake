# Installs the libraries: the component "runtime" is what programs need to run, "dev" what they need
# to be built, with find_package() or pkg-config.
include(CMakePackageConfigHelpers)
include(GNUInstallDirs)

# INCLUDE_DIR is the root of the header names, EXPORT_HEADER the generated one; PACKAGES are the CMake packages and REQUIRES the
# pkg-config modules that users of the library need too.
function(vex_install_library target)
  cmake_parse_arguments(ARG "" "INCLUDE_DIR;EXPORT_HEADER;DESCRIPTION;REQUIRES;REQUIRES_PRIVATE"
    "HEADERS;PACKAGES" ${ARGN})
  set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/${target})
  set(include_dir ${CMAKE_INSTALL_INCLUDEDIR}/${target})

  target_include_directories(${target} INTERFACE $<INSTALL_INTERFACE:${include_dir}>)
  set_target_properties(${target} PROPERTIES INSTALL_RPATH "$ORIGIN")
  install(TARGETS ${target} EXPORT ${target}
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT dev
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT runtime
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime NAMELINK_COMPONENT dev)
  foreach(header ${ARG_HEADERS})
    get_filename_component(folder ${header} DIRECTORY)
    install(FILES ${ARG_INCLUDE_DIR}/${header} DESTINATION ${include_dir}/${folder} COMPONENT dev)
  endforeach()
  get_target_property(binary_dir ${target} BINARY_DIR)
  get_filename_component(folder ${ARG_EXPORT_HEADER} DIRECTORY)
  install(FILES ${binary_dir}/generated/${ARG_EXPORT_HEADER}
    DESTINATION ${include_dir}/${folder} COMPONENT dev)

  install(EXPORT ${target} NAMESPACE Vex:: FILE ${target}Targets.cmake
    DESTINATION ${package_dir} COMPONENT dev)
  set(dependencies "")
  foreach(package ${ARG_PACKAGES})
    string(APPEND dependencies "find_dependency(${package})\n")
  endforeach()
  configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/Config.cmake.in
    ${PROJECT_BINARY_DIR}/package/${target}Config.cmake INSTALL_DESTINATION ${package_dir})
  write_basic_package_version_file(${PROJECT_BINARY_DIR}/package/${target}ConfigVersion.cmake
    COMPATIBILITY SameMajorVersion)

  # Of a static library, what its headers need to know.
  get_target_property(definitions ${target} INTERFACE_COMPILE_DEFINITIONS)
  set(pc_flags "")
  if(definitions)
    string(REGEX REPLACE "([^;]+);?" " -D\\1" pc_flags "${definitions}")
  endif()
  file(RELATIVE_PATH prefix_from_pc ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
  string(REGEX REPLACE "/$" "" prefix_from_pc ${prefix_from_pc})
  configure_file(${PROJECT_SOURCE_DIR}/cmake/library.pc.in
    ${PROJECT_BINARY_DIR}/package/${target}.pc @ONLY)
  install(FILES
    ${PROJECT_BINARY_DIR}/package/${target}Config.cmake
    ${PROJECT_BINARY_DIR}/package/${target}ConfigVersion.cmake
    DESTINATION ${package_dir} COMPONENT dev)
  install(FILES ${PROJECT_BINARY_DIR}/package/${target}.pc
    DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT dev)
endfunction()

if(TARGET VexMorrowUtility)
  vex_install_library(VexMorrowUtility
    DESCRIPTION "The export catalogue of a media converter"
    INCLUDE_DIR ${PROJECT_SOURCE_DIR}/utility
    HEADERS formatcodecapi.h
    EXPORT_HEADER utilityglobal.h
    PACKAGES "Qt${VEX_QT} 5.15 COMPONENTS Core"
    REQUIRES "Qt${VEX_QT}Core >= 5.15")
endif()

vex_install_library(VexConvertFormats
  DESCRIPTION "The output formats and presets of a media converter, as models for QML"
  INCLUDE_DIR ${PROJECT_SOURCE_DIR}
  EXPORT_HEADER formats/formatsglobal.h
  HEADERS
    formats/models/formatdetailmodel.h
    formats/models/formatdetailmodeldata.h
    formats/models/formatlistmodel.h
    formats/models/formatlistmodeldata.h
    formats/models/formatlistmodelproxy.h
    formats/parsers/iformatsparser.h
    formats/parsers/noformatidparser.h
    formats/parsers/widthformatidparser.h
    formats/proxy/formatsproxy.h
  PACKAGES "Qt${VEX_QT} 5.15 COMPONENTS Core Qml" VexMorrowUtility
  REQUIRES "Qt${VEX_QT}Core >= 5.15, VexMorrowUtility"
  REQUIRES_PRIVATE "Qt${VEX_QT}Qml >= 5.15")

# What editors and qmllint know about the types that the library registers with QML.
install(FILES
  ${PROJECT_SOURCE_DIR}/formats/qml/CVFormats/qmldir
  ${PROJECT_SOURCE_DIR}/formats/qml/CVFormats/plugins.qmltypes
  DESTINATION ${CMAKE_INSTALL_LIBDIR}/qt${VEX_QT}/qml/CVFormats COMPONENT dev)
