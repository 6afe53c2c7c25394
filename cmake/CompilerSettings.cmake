# Warnings are errors for our own code; every target of ours links waymark_settings.
add_library(waymark_settings INTERFACE)
target_compile_options(waymark_settings INTERFACE
    -Wall -Wextra -Wpedantic -Werror -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-align
    -Wunused -Wformat=2 -Wimplicit-fallthrough)
target_include_directories(waymark_settings INTERFACE ${CMAKE_SOURCE_DIR}/src)
target_compile_definitions(waymark_settings INTERFACE WAYMARK_VERSION="${PROJECT_VERSION}"
    WAYMARK_INSTALLED_RESOURCES="${CMAKE_INSTALL_FULL_DATADIR}/waymark")
# ccache can only store objects that use a precompiled header when it is told how the header came about.
target_compile_options(waymark_settings INTERFACE $<$<CXX_COMPILER_ID:GNU>:-fpch-preprocess>)

if(CMAKE_BUILD_TYPE STREQUAL "RelWithDebInfo")
    set(CMAKE_CXX_FLAGS_RELWITHDEBINFO "-O2 -g1")
endif()

if(WAYMARK_SANITIZE)
    # GCC 12 sees uninitialised members inside std::regex once the sanitizers have changed its code.
    target_compile_options(waymark_settings INTERFACE -Wno-maybe-uninitialized)
    add_compile_options(-fsanitize=${WAYMARK_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all -O1)
    add_link_options(-fsanitize=${WAYMARK_SANITIZE})
endif()
