# Compiles the translations of the program's texts into its resource folder "translations". Where the texts come from
# and how they stay complete: scripts/update-translations.
set(translations)
foreach(language de es fr)
    set(compiled ${WAYMARK_RESOURCES}/translations/waymark_${language}.qm)
    set(source ${CMAKE_SOURCE_DIR}/resources/translations/waymark_${language}.ts)
    add_custom_command(OUTPUT ${compiled} DEPENDS ${source}
        COMMAND ${CMAKE_COMMAND} -E make_directory ${WAYMARK_RESOURCES}/translations
        COMMAND Qt6::lrelease -silent -nounfinished ${source} -qm ${compiled})
    list(APPEND translations ${compiled})
endforeach()
add_custom_target(waymark_translations ALL DEPENDS ${translations})
install(FILES ${translations} DESTINATION ${CMAKE_INSTALL_DATADIR}/waymark/translations)
