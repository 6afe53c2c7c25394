# The floors of the house, lowest first. A floor is a static library made of every source below its folder; it
# may link, and so use, only floors below it. WITHOUT names a folder inside that is a floor of its own.
set(WAYMARK_PCH ${CMAKE_SOURCE_DIR}/cmake/precompiled.h)

function(waymark_floor name folder)
    cmake_parse_arguments(arg "" "" "WITHOUT;USES;PRIVATELY" ${ARGN})
    file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${folder}/*.cpp
         ${CMAKE_CURRENT_SOURCE_DIR}/${folder}/*.h)
    list(FILTER sources EXCLUDE REGEX "/main\\.cpp$") # of programs
    if(arg_WITHOUT)
        list(FILTER sources EXCLUDE REGEX "/${arg_WITHOUT}/")
    endif()
    add_library(${name} STATIC ${sources})
    target_link_libraries(${name} PUBLIC waymark_settings ${arg_USES} PRIVATE ${arg_PRIVATELY})
    if(WAYMARK_PRECOMPILED_HEADERS)
        target_precompile_headers(${name} PRIVATE ${WAYMARK_PCH})
    endif()
endfunction()
