# What gets installed, and the Debian package made of it. Knows nothing of how the programs are built.
#
# The programs live in one folder together with the strengths that they start with; links put them on the
# path. Each program finds its folder through the link.

include(CheckPIESupported)
check_pie_supported()
set_target_properties(pixano pixano-batch PROPERTIES POSITION_INDEPENDENT_CODE ON)

# Whatever the umask, everybody may read what is installed.
set(CMAKE_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(PIXANO_FOLDER lib/pixano)
set(PACKAGING ${CMAKE_SOURCE_DIR}/packaging)

install(TARGETS pixano pixano-batch DESTINATION ${PIXANO_FOLDER})
install(FILES resources/valori.tip DESTINATION ${PIXANO_FOLDER}
        PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/links)
foreach(program pixano pixano-batch)
  file(CREATE_LINK ../${PIXANO_FOLDER}/${program} ${CMAKE_BINARY_DIR}/links/${program} SYMBOLIC)
  install(FILES ${CMAKE_BINARY_DIR}/links/${program} DESTINATION bin)
endforeach()

install(FILES packaging/pixano.desktop DESTINATION share/applications)
install(FILES packaging/org.example.pixano.metainfo.xml DESTINATION share/metainfo)
install(FILES packaging/completion/pixano packaging/completion/pixano-batch
        DESTINATION share/bash-completion/completions)
install(FILES resources/drawings/pixano.svg DESTINATION share/icons/hicolor/scalable/apps)
foreach(size 16 24 32 48 64 128 256)
  install(FILES resources/icons/pixano-${size}.png RENAME pixano.png
          DESTINATION share/icons/hicolor/${size}x${size}/apps)
endforeach()

# Texts that Debian wants compressed, without the time of compression in them.
function(install_compressed source name folder)
  string(MAKE_C_IDENTIFIER ${folder}_${name} place)
  set(compressed ${CMAKE_BINARY_DIR}/compressed/${place}.gz)
  add_custom_command(
    OUTPUT ${compressed}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_BINARY_DIR}/compressed
    COMMAND gzip -9nc ${PACKAGING}/${source} > ${compressed}
    DEPENDS ${PACKAGING}/${source}
    VERBATIM)
  set_property(GLOBAL APPEND PROPERTY PIXANO_COMPRESSED ${compressed})
  install(FILES ${compressed} RENAME ${name}.gz DESTINATION ${folder})
endfunction()

foreach(page pixano.1 pixano-batch.1)
  install_compressed(man/${page} ${page} share/man/man1)
  install_compressed(man/it/${page} ${page} share/man/it/man1)
endforeach()
install_compressed(debian/changelog changelog.Debian share/doc/pixano)
install(FILES packaging/debian/copyright DESTINATION share/doc/pixano)
get_property(compressed GLOBAL PROPERTY PIXANO_COMPRESSED)
add_custom_target(pixano-texts ALL DEPENDS ${compressed})

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME pixano)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT "The Pixano authors <pixano@example.org>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "picture effects, one after another")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS ${CMAKE_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS})
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
# Not from the Debian archive: an official 2.3-1 would be newer.
set(CPACK_DEBIAN_PACKAGE_RELEASE 0pixano1)
set(CPACK_DEBIAN_PACKAGE_SECTION graphics)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# The dialogs' Italian, and letters to write it with: no library asks for them.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "qt6-translations-l10n, fonts-dejavu-core")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-wayland")
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "bash-completion")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
    "Pixano opens a picture (BMP, JPEG or GIF) and applies to it, one after
another, any of forty-six effects: reflections and mirrors, quarter turns,
enlargements of a region, pictures made of copies of themselves, random
deformations, and a family of colour effects. One step can be taken back and
done again. The result is saved as a BMP file.
.
The same effects work on whole folders of pictures with the command
pixano-batch.
.
The user interface is Italian.")
include(CPack)
