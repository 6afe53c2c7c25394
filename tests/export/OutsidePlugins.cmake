# Installs the headers for plug-ins into a temporary folder, builds the bundles there against them alone, and lets the
# command line export a photo with each.
execute_process(COMMAND mktemp -d OUTPUT_VARIABLE folder OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)

function(run)
    execute_process(COMMAND ${ARGV} RESULT_VARIABLE status OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(NOT status EQUAL 0)
        file(REMOVE_RECURSE ${folder})
        message(FATAL_ERROR "${ARGV}: ${status}\n${output}")
    endif()
endfunction()

run(${CMAKE_COMMAND} --install ${BUILD} --prefix ${folder}/installed --component waymark-dev)
foreach(plugin folder mappage)
    # Away from the project, so that nothing beside the bundle's own files is found.
    file(COPY ${SOURCE}/${plugin} DESTINATION ${folder}/source)
    run(${CMAKE_COMMAND} -S ${folder}/source/${plugin} -B ${folder}/build -G Ninja -D CMAKE_BUILD_TYPE=Debug
        -D CMAKE_PREFIX_PATH=${folder}/installed)
    run(${CMAKE_COMMAND} --build ${folder}/build)
    file(REMOVE ${folder}/build/CMakeCache.txt)
endforeach()

file(COPY ${PHOTO} DESTINATION ${folder}/photos)
foreach(name Folder "Map Page")
    run(${CMAKE_COMMAND} -E env XDG_DATA_HOME=${folder} XDG_CONFIG_HOME=${folder}
        WAYMARK_PLUGINS=${folder}/build/lib/waymark/PlugIns
        ${CLI} --library :memory: export --plugin ${name} --to ${folder}/out ${folder}/photos)
endforeach()
foreach(file photo.jpg "Map Page/index.html" "Map Page/photos.kmz" "Map Page/photos/001 photo.jpg")
    if(NOT EXISTS "${folder}/out/${file}")
        file(REMOVE_RECURSE ${folder})
        message(FATAL_ERROR "${file} was not exported")
    endif()
endforeach()
file(REMOVE_RECURSE ${folder})
