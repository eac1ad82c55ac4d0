# What is installed, in two layouts that hold the same files. "system" is the Debian package's and
# what `cmake --install` does: the program and all that stands beside it in lib/barvon. "portable"
# is one folder that is unpacked anywhere. cpack_generator.cmake says which generator takes which.

# barvon_install(PROGRAMS | FILES | DIRECTORY | TARGETS SYSTEM folder PORTABLE folder WHAT...)
function(barvon_install kind)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "SYSTEM;PORTABLE" "WHAT;OPTIONS")
  install(${kind} ${arg_WHAT} DESTINATION ${arg_SYSTEM} COMPONENT system ${arg_OPTIONS})
  install(${kind} ${arg_WHAT} DESTINATION ${arg_PORTABLE} COMPONENT portable EXCLUDE_FROM_ALL
          ${arg_OPTIONS})
endfunction()

set(from ${CMAKE_CURRENT_LIST_DIR})
set(made ${CMAKE_CURRENT_BINARY_DIR}/packaging)
set(doc share/doc/barvon)

# Beside the program.
barvon_install(TARGETS SYSTEM lib/barvon PORTABLE . WHAT barvon barvon-run barvon-solver kv_graph)
barvon_install(FILES SYSTEM lib/barvon PORTABLE . WHAT ${BARVON_HELP_FILE} ${BARVON_BESIDE_PROGRAM})
file(MAKE_DIRECTORY ${made}/bin)
foreach(command barvon barvon-run)
  file(CREATE_LINK ../lib/barvon/${command} ${made}/bin/${command} SYMBOLIC)
  install(FILES ${made}/bin/${command} DESTINATION bin COMPONENT system)
endforeach()

# For the desktop.
foreach(file applications/barvon.desktop metainfo/local.barvon.barvon.metainfo.xml
        mime/packages/barvon.xml icons/hicolor/scalable/mimetypes/application-x-barvon-project.svg)
  get_filename_component(folder ${file} DIRECTORY)
  get_filename_component(name ${file} NAME)
  barvon_install(FILES SYSTEM share/${folder} PORTABLE share/${folder} WHAT ${from}/desktop/${name})
endforeach()
set(icons share/icons/hicolor/scalable/apps)
barvon_install(FILES SYSTEM ${icons} PORTABLE ${icons}
               WHAT ${PROJECT_SOURCE_DIR}/resources/pictures/barvon.svg)

# To read.
set(documents ${from}/debian/copyright)
foreach(document barvon-run companion-solver dependencies file-formats)
  list(APPEND documents ${PROJECT_SOURCE_DIR}/docs/${document}.md)
endforeach()
barvon_install(FILES SYSTEM ${doc} PORTABLE docs WHAT ${documents})
file(GLOB projects CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/samples/*.DUI)
barvon_install(FILES SYSTEM ${doc}/examples PORTABLE samples
               WHAT ${projects} ${PROJECT_SOURCE_DIR}/samples/README.md)
install(FILES ${from}/README.portable.md DESTINATION . RENAME README.md
        COMPONENT portable EXCLUDE_FROM_ALL)
install(FILES ${PROJECT_SOURCE_DIR}/CHANGELOG.md DESTINATION .
        COMPONENT portable EXCLUDE_FROM_ALL)
foreach(library cli11 nlohmann-json)
  file(GLOB licence /usr/share/doc/lib${library}-dev/copyright
       /usr/share/doc/${library}3-dev/copyright)
  if(licence)
    barvon_install(FILES SYSTEM ${doc} PORTABLE docs WHAT ${licence}
                   OPTIONS RENAME ${library}.copyright)
  endif()
endforeach()

set(CPACK_PACKAGE_NAME barvon)
set(CPACK_PACKAGE_VENDOR BARVON)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "workbench for dredged material released into open water")
set(CPACK_STRIP_FILES ON)
set(CPACK_GENERATOR DEB TGZ)
set(CPACK_COMPONENTS_GROUPING ALL_COMPONENTS_IN_ONE)
set(CPACK_PROJECT_CONFIG_FILE ${from}/cpack_generator.cmake)
set(CPACK_PACKAGE_FILE_NAME barvon-${PROJECT_VERSION}-linux-${CMAKE_SYSTEM_PROCESSOR})
set(CPACK_ARCHIVE_COMPONENT_INSTALL ON)

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "The makers of BARVON <barvon@packages.invalid>")
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# The help keeps its pages in a data base whose driver no linker sees.
set(CPACK_DEBIAN_PACKAGE_DEPENDS libqt6sql6-sqlite)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "fonts-dejavu-core, qt6-wayland")
set(CPACK_DEBIAN_PACKAGE_SUGGESTS dosbox)
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"Describes one release of dredged material from a hopper dredge, a pipeline or
a split-hull barge: the site, its water and currents, the material, the vessel
and how it empties. BARVON checks the description, keeps it in a text file,
writes the model input, starts a solver on it and keeps the outputs.
.
An external solver is taken where there is one. Otherwise the companion solver
runs: a model of its own from general fluid dynamics, not a validated code for
permits. kv_graph draws its outputs; barvon-run does all this without a window.")

# Compressed as Debian wants it, and bearing the source's time rather than the build's.
string(TIMESTAMP BARVON_BUILT_AT "%a, %d %b %Y %H:%M:%S +0000" UTC)
configure_file(${from}/debian/changelog.in ${made}/changelog.Debian @ONLY)
configure_file(${PROJECT_SOURCE_DIR}/CHANGELOG.md ${made}/changelog COPYONLY)
find_program(GZIP_PROGRAM gzip REQUIRED)
foreach(file changelog.Debian changelog man/barvon.1 man/barvon-run.1)
  set(source ${made}/${file})
  set(folder ${doc})
  if(file MATCHES "^man/")
    set(source ${from}/${file})
    set(folder share/man/man1)
  endif()
  get_filename_component(name ${file} NAME)
  execute_process(COMMAND ${GZIP_PROGRAM} -9nc ${source} OUTPUT_FILE ${made}/${name}.gz
                  COMMAND_ERROR_IS_FATAL ANY)
  install(FILES ${made}/${name}.gz DESTINATION ${folder} COMPONENT system)
endforeach()

include(CPack)
