# Checks that the library's include lines reach only down the layers:
#     foundation < geom < plane_geometry < polyline < regions, profiles
# with the services beside the geometry, on the foundation alone. A subsystem may include
# any header of the subsystems below it and of its own, except that the headers in an
# internal/ folder are private to their subsystem; what a layer offers the layers above
# beyond its public headers lives in its shared/ folder.
#
#     cmake -DSOURCE_DIR=<folder that holds orx/> -P check_layers.cmake
#
# Fails with one line per offending include.
cmake_minimum_required(VERSION 3.25)

set(layers_foundation foundation)
set(layers_geom foundation geom)
set(layers_plane_geometry foundation geom plane_geometry)
set(layers_polyline foundation geom plane_geometry polyline)
set(layers_regions foundation geom plane_geometry polyline regions)
set(layers_profiles foundation geom plane_geometry polyline profiles)
set(layers_services foundation services)

file(GLOB_RECURSE sources RELATIVE "${SOURCE_DIR}"
    "${SOURCE_DIR}/orx/*.h" "${SOURCE_DIR}/orx/*.cpp")

set(problems "")
foreach(source IN LISTS sources)
    if(NOT source MATCHES "^orx/([a-z_]+)/")
        continue()  # the umbrella header orx/orx.h gathers every subsystem
    endif()
    set(from "${CMAKE_MATCH_1}")
    if(NOT DEFINED layers_${from})
        list(APPEND problems "${source}: subsystem ${from} has no place in the layers")
        continue()
    endif()
    file(STRINGS "${SOURCE_DIR}/${source}" includes REGEX "^[ \t]*#[ \t]*include[ \t]*\"orx/")
    foreach(line IN LISTS includes)
        if(NOT line MATCHES "\"(orx/([a-z_]+)/([^\"]*))\"")
            continue()
        endif()
        set(header "${CMAKE_MATCH_1}")
        set(to "${CMAKE_MATCH_2}")
        set(rest "${CMAKE_MATCH_3}")
        if(NOT to IN_LIST layers_${from})
            list(APPEND problems "${source}: includes ${header}, which is not below ${from}")
        elseif(NOT to STREQUAL from AND rest MATCHES "(^|/)internal/")
            list(APPEND problems "${source}: includes ${header}, private to ${to}")
        endif()
    endforeach()
endforeach()

if(problems)
    foreach(problem IN LISTS problems)
        message(NOTICE "${problem}")
    endforeach()
    list(LENGTH problems count)
    message(FATAL_ERROR "${count} include lines break the layers")
endif()
