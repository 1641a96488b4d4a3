# What gets installed. Knows nothing of how the programs are built; debian/ makes the package of it.
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
install(FILES packaging/man/pixano.1 packaging/man/pixano-batch.1 DESTINATION share/man/man1)
install(FILES packaging/man/it/pixano.1 packaging/man/it/pixano-batch.1 DESTINATION share/man/it/man1)
install(FILES resources/drawings/pixano.svg DESTINATION share/icons/hicolor/scalable/apps)
foreach(size 16 24 32 48 64 128 256)
  install(FILES resources/icons/pixano-${size}.png RENAME pixano.png
          DESTINATION share/icons/hicolor/${size}x${size}/apps)
endforeach()
