# waymark_perl: what the one source file that sees the interpreter's headers needs.
find_program(WAYMARK_PERL perl REQUIRED)
function(waymark_ask_perl result)
    execute_process(COMMAND ${WAYMARK_PERL} ${ARGN} OUTPUT_VARIABLE answer OUTPUT_STRIP_TRAILING_WHITESPACE
                    COMMAND_ERROR_IS_FATAL ANY)
    set(${result} "${answer}" PARENT_SCOPE)
endfunction()

waymark_ask_perl(WAYMARK_PERL_ARCHIVE "-MConfig=config_vars" -e [[print $Config::Config{archlibexp}]])
set(WAYMARK_PERL_CORE ${WAYMARK_PERL_ARCHIVE}/CORE)
waymark_ask_perl(WAYMARK_PERL_FLAGS -MConfig -e [[print $Config{ccflags}]])
waymark_ask_perl(WAYMARK_PERL_SONAME -MConfig -e [[print join ".", "libperl.so", @Config{qw(PERL_REVISION PERL_VERSION)}]])
if(NOT EXISTS ${WAYMARK_PERL_CORE}/perl.h)
    message(FATAL_ERROR "perl.h is missing: install libperl-dev")
endif()
find_library(WAYMARK_LIBPERL NAMES perl ${WAYMARK_PERL_SONAME} REQUIRED)

# Keep perl's feature macros (-D…) and -f… flags, not its optimisation or warning flags.
separate_arguments(perl_flags UNIX_COMMAND "${WAYMARK_PERL_FLAGS}")
list(FILTER perl_flags INCLUDE REGEX "^-(D|fwrapv|fno-strict-aliasing)")

add_library(waymark_perl INTERFACE)
target_compile_definitions(waymark_perl INTERFACE WAYMARK_PERL_SONAME="${WAYMARK_PERL_SONAME}")
target_include_directories(waymark_perl SYSTEM INTERFACE ${WAYMARK_PERL_CORE})
target_compile_options(waymark_perl INTERFACE ${perl_flags})
target_link_libraries(waymark_perl INTERFACE ${WAYMARK_LIBPERL} ${CMAKE_DL_LIBS})
