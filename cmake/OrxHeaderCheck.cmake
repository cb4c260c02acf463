# orx_add_header_check(): every public header of the library compiles on its own.
#
# For each header under orx/ (internal and platform folders excepted) a one-line source that
# includes only that header is generated and compiled with the project's warnings. A header
# that leans on an include its users happen to make first, or that warns under a client's
# strict warnings, fails the build here, not in a user's code. The objects are never linked.
function(orx_add_header_check)
    file(GLOB_RECURSE headers RELATIVE "${PROJECT_SOURCE_DIR}" CONFIGURE_DEPENDS
         "${PROJECT_SOURCE_DIR}/orx/*.h")
    list(FILTER headers EXCLUDE REGEX "/(internal|win32|posix)/")
    set(sources "")
    foreach(header IN LISTS headers)
        string(MAKE_C_IDENTIFIER "${header}" stem)
        set(source "${CMAKE_CURRENT_BINARY_DIR}/header_check/${stem}.cpp")
        set(text "#include \"${header}\"  // must compile with nothing before it\n")
        if(EXISTS "${source}")
            file(READ "${source}" old)
        else()
            set(old "")
        endif()
        if(NOT old STREQUAL text)
            file(WRITE "${source}" "${text}")
        endif()
        list(APPEND sources "${source}")
    endforeach()
    add_library(orx_header_check OBJECT ${sources})
    target_link_libraries(orx_header_check PRIVATE orx::base)
    # A client may build with every conversion warning on: the headers stay clean under
    # them, sign changes included, though the library's own sources index with int.
    orx_set_strict_warnings(orx_header_check)
    target_compile_options(orx_header_check PRIVATE -Wpedantic -Wsign-conversion)
endfunction()
