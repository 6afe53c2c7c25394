# What a desktop has to know of the program: entry, icons, types of files, description, activation over the bus.
set(desktop ${CMAKE_SOURCE_DIR}/resources/desktop)
install(FILES ${desktop}/org.waymark.Waymark.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${desktop}/org.waymark.Waymark.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES ${desktop}/org.waymark.Waymark.mime.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages
    RENAME org.waymark.Waymark.xml)
install(FILES ${desktop}/org.waymark.Waymark.svg DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
foreach(size 16 22 24 32 48 64 128 256 512) # drawn by scripts/make-icons
    install(FILES ${desktop}/icons/${size}.png RENAME org.waymark.Waymark.png
        DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/${size}x${size}/apps)
endforeach()
# The bus starts the program by its whole path, which is known when it is installed.
install(CODE "set(WAYMARK_PROGRAM \"\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_BINDIR}/waymark\")
    configure_file(\"${desktop}/org.waymark.Waymark.service.in\" \"${CMAKE_BINARY_DIR}/org.waymark.Waymark.service\" @ONLY)")
install(FILES ${CMAKE_BINARY_DIR}/org.waymark.Waymark.service DESTINATION ${CMAKE_INSTALL_DATADIR}/dbus-1/services)
