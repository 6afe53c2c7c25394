# Puts Image::ExifTool in place as the resource folder "exiftoollib" of the build tree (by symbolic links: it
# is the installed package's, not ours) and of an installation.
set(exiftool_source "${WAYMARK_EXIFTOOL_FOLDER}")
if(NOT exiftool_source)
    waymark_ask_perl(exiftool_source -MImage::ExifTool -e [[print $INC{"Image/ExifTool.pm"}]])
    string(REGEX REPLACE "/Image/ExifTool\\.pm$" "" exiftool_source ${exiftool_source})
endif()
if(NOT EXISTS ${exiftool_source}/Image/ExifTool.pm)
    message(FATAL_ERROR "No Image/ExifTool.pm under \"${exiftool_source}\": install libimage-exiftool-perl")
endif()

set(WAYMARK_RESOURCES ${CMAKE_BINARY_DIR}/share/waymark)
foreach(part Image/ExifTool.pm Image/ExifTool File/RandomAccess.pm)
    if(EXISTS ${exiftool_source}/${part})
        cmake_path(GET part PARENT_PATH folder)
        file(MAKE_DIRECTORY ${WAYMARK_RESOURCES}/exiftoollib/${folder})
        file(CREATE_LINK ${exiftool_source}/${part} ${WAYMARK_RESOURCES}/exiftoollib/${part} SYMBOLIC)
        install(CODE "file(MAKE_DIRECTORY \$ENV{DESTDIR}${CMAKE_INSTALL_FULL_DATADIR}/waymark/exiftoollib/${folder})
            file(CREATE_LINK ${exiftool_source}/${part}
                 \$ENV{DESTDIR}${CMAKE_INSTALL_FULL_DATADIR}/waymark/exiftoollib/${part} SYMBOLIC)")
    endif()
endforeach()
