# Script run by ctest: install, configure and build the consumer, run it.
file(REMOVE_RECURSE "${WORK_DIR}")
set(prefix "${WORK_DIR}/prefix")

function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE status OUTPUT_VARIABLE out ERROR_VARIABLE out)
    if(NOT status EQUAL 0)
        message(FATAL_ERROR "failed (${status}): ${ARGN}\n${out}")
    endif()
    set(output "${out}" PARENT_SCOPE)
endfunction()

run(${CMAKE_COMMAND} --install "${BUILD_DIR}" --prefix "${prefix}")

file(GLOB_RECURSE config "${prefix}/*/OrxBaseConfig.cmake")
if(NOT config)
    message(FATAL_ERROR "the install put no OrxBaseConfig.cmake under ${prefix}")
endif()
list(GET config 0 config)
get_filename_component(package_dir "${config}" DIRECTORY)

set(configure_args -S "${CONSUMER_SOURCE}" -B "${WORK_DIR}/consumer" -G "${GENERATOR}"
    "-DOrxBase_DIR=${package_dir}"
    "-DCMAKE_CXX_FLAGS=${CXX_FLAGS}" "-DCMAKE_EXE_LINKER_FLAGS=${LINKER_FLAGS}")
if(TOOLCHAIN)
    list(APPEND configure_args "-DCMAKE_TOOLCHAIN_FILE=${TOOLCHAIN}")
endif()
run(${CMAKE_COMMAND} ${configure_args})
run(${CMAKE_COMMAND} --build "${WORK_DIR}/consumer")

file(GLOB program "${WORK_DIR}/consumer/orx_consumer" "${WORK_DIR}/consumer/orx_consumer.exe")
run(${EMULATOR} ${program})
if(NOT output MATCHES "orx 2017.0 distance 5")
    message(FATAL_ERROR "unexpected consumer output: ${output}")
endif()
message(STATUS "consumer ran: ${output}")
