# Puts the data that the program carries in place beside the build, by links to the source tree, and in an
# installation: resources/data (geomagnetic models, ...) and resources/demo (the photos and track of the demo).
file(MAKE_DIRECTORY ${WAYMARK_RESOURCES})
foreach(folder data demo)
    file(CREATE_LINK ${CMAKE_SOURCE_DIR}/resources/${folder} ${WAYMARK_RESOURCES}/${folder} SYMBOLIC)
    install(DIRECTORY ${CMAKE_SOURCE_DIR}/resources/${folder} DESTINATION ${CMAKE_INSTALL_DATADIR}/waymark)
endforeach()
