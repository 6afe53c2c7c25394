# find_package(Waymark) for export plug-ins: the target Waymark::PlugIn, which carries the public headers, and
# waymark_add_plugin. Works from an installation and from the source.
include(CMakeFindDependencyMacro)
find_dependency(Qt6 COMPONENTS Core)

if(NOT TARGET Waymark::PlugIn)
    add_library(Waymark::PlugIn INTERFACE IMPORTED GLOBAL)
    if(EXISTS "${CMAKE_CURRENT_LIST_DIR}/../../../include/waymark")
        target_include_directories(Waymark::PlugIn INTERFACE "${CMAKE_CURRENT_LIST_DIR}/../../../include")
    else()
        target_include_directories(Waymark::PlugIn INTERFACE "${CMAKE_CURRENT_LIST_DIR}/../../src/export")
    endif()
    target_link_libraries(Waymark::PlugIn INTERFACE Qt6::Core)
    target_compile_features(Waymark::PlugIn INTERFACE cxx_std_20)
endif()

# waymark_add_plugin(TARGET BUNDLE Name LIBRARY name SOURCES … FILES manifest.json …)
# makes Name.ktplugin in lib/waymark/PlugIns of the build, and installs it there.
function(waymark_add_plugin target)
    cmake_parse_arguments(arg "" "BUNDLE;LIBRARY" "SOURCES;FILES" ${ARGN})
    set(bundle lib/waymark/PlugIns/${arg_BUNDLE}.ktplugin)
    add_library(${target} MODULE ${arg_SOURCES})
    target_link_libraries(${target} PRIVATE Waymark::PlugIn)
    set_target_properties(${target} PROPERTIES AUTOMOC ON AUTORCC ON PREFIX "" OUTPUT_NAME ${arg_LIBRARY}
        CXX_VISIBILITY_PRESET hidden LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/${bundle})
    foreach(file ${arg_FILES})
        configure_file(${file} ${CMAKE_BINARY_DIR}/${bundle}/${file} COPYONLY)
    endforeach()
    install(TARGETS ${target} LIBRARY DESTINATION ${bundle})
    install(FILES ${arg_FILES} DESTINATION ${bundle})
endfunction()
