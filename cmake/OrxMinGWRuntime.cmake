# The C++ runtime DLLs of MinGW-w64. The library is linked against them dynamically (a
# statically linked runtime gives every module its own exception bookkeeping, and exceptions
# crossing the DLL boundary then corrupt it), so they are copied next to the library and the
# programs of the build, and installed beside the DLL.

set(ORX_MINGW_RUNTIME_DLLS)
foreach(dll libstdc++-6.dll libgcc_s_seh-1.dll libwinpthread-1.dll)
    execute_process(
        COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${dll}
        OUTPUT_VARIABLE path OUTPUT_STRIP_TRAILING_WHITESPACE)
    if(NOT IS_ABSOLUTE "${path}" OR NOT EXISTS "${path}")
        message(FATAL_ERROR "MinGW runtime ${dll} not found (compiler said '${path}')")
    endif()
    list(APPEND ORX_MINGW_RUNTIME_DLLS "${path}")
endforeach()

file(COPY ${ORX_MINGW_RUNTIME_DLLS} DESTINATION "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}")
