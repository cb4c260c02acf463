# Compiler settings shared by the library, its tests, the tool and the benchmarks.

# orx_set_warnings(<target>): the warning set every target of the project is built with.
# Implicit conversions that may change a value are warnings everywhere; the library, the
# tool and the header check also flag sign changes (orx_set_strict_warnings), where an
# unsigned count meets a signed index at the interface.
function(orx_set_warnings target)
    target_compile_options(${target} PRIVATE
        -Wall -Wextra -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual
        -Wcast-align -Wdouble-promotion -Wformat=2 -Wconversion
        $<$<BOOL:${ORX_WERROR}>:-Werror>)
endfunction()

# orx_set_strict_warnings(<target>): the common set and -Wsign-conversion.
function(orx_set_strict_warnings target)
    orx_set_warnings(${target})
    target_compile_options(${target} PRIVATE -Wsign-conversion)
endfunction()
