# The manual pages, made by the programs themselves of what their help says, in English.
if(NOT WAYMARK_SANITIZE)
    foreach(program waymark waymark-cli)
        set(page ${CMAKE_BINARY_DIR}/share/man/man1/${program}.1)
        add_custom_command(OUTPUT ${page} DEPENDS ${program}
            COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_BINARY_DIR}/share/man/man1
            COMMAND ${CMAKE_COMMAND} -E env LC_ALL=C.UTF-8 LANGUAGE=en $<TARGET_FILE:${program}> --man-page > ${page}
            COMMAND gzip -9nkf ${page})
        list(APPEND manuals ${page})
        install(FILES ${page}.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
    endforeach()
    add_custom_target(waymark_manuals ALL DEPENDS ${manuals})
endif()
