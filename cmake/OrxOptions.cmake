# Compiler settings shared by the library, its tests, the tool and the benchmarks.

# orx_set_warnings(<target>): the warning set every target of the project is built with.
function(orx_set_warnings target)
    target_compile_options(${target} PRIVATE
        -Wall -Wextra -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual
        -Wcast-align -Wdouble-promotion -Wformat=2
        $<$<BOOL:${ORX_WERROR}>:-Werror>)
endfunction()

# orx_set_strict_warnings(<target>): the common set and implicit conversions that may change a
# value, for the code that ships (the library and the tool). The tests keep the common set:
# their literals and counts would need casts that say nothing.
function(orx_set_strict_warnings target)
    orx_set_warnings(${target})
    # Clang's -Wconversion also covers sign changes, which GCC's leaves apart. The Windows
    # build leaves it out: there long has 32 bits, and every size_t given to the interface's
    # unsigned long counts would need a cast that the native build's check already vouches for.
    if(NOT WIN32)
        target_compile_options(${target} PRIVATE -Wconversion
            $<$<CXX_COMPILER_ID:Clang>:-Wno-sign-conversion>)
    endif()
endfunction()
