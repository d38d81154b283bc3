# SPDX-License-Identifier: MIT

# vc_library(<folder> [TARGET name] SOURCES ... [PUBLIC ...] [PRIVATE ...])
# A static library for one folder. Its headers are reached as "<folder>/Name.h" through an include folder that holds links
# to the listed ones and nothing else. PUBLIC is for the parts of Qt that the headers show. Folders are linked PRIVATE: a
# target that uses this one sees no folder that it does not name itself.
function(vc_library folder)
    cmake_parse_arguments(ARG "" "TARGET" "SOURCES;PUBLIC;PRIVATE" ${ARGN})
    if(NOT ARG_TARGET)
        string(REPLACE "/" "_" ARG_TARGET "vc_${folder}")
    endif()
    set(include_dir ${CMAKE_BINARY_DIR}/include/${ARG_TARGET})
    file(REMOVE_RECURSE ${include_dir})
    foreach(header IN LISTS ARG_SOURCES)
        if(header MATCHES "\\.h$")
            get_filename_component(parent ${include_dir}/${folder}/${header} DIRECTORY)
            file(MAKE_DIRECTORY ${parent})
            file(CREATE_LINK ${CMAKE_SOURCE_DIR}/${folder}/${header} ${include_dir}/${folder}/${header} SYMBOLIC)
        endif()
    endforeach()
    add_library(${ARG_TARGET} STATIC ${ARG_SOURCES})
    target_include_directories(${ARG_TARGET} PUBLIC ${include_dir})
    target_link_libraries(${ARG_TARGET} PUBLIC vc_options ${ARG_PUBLIC} PRIVATE ${ARG_PRIVATE})
endfunction()

# vc_test(<name> SOURCES ... LINK ... [DISPLAY] [TIMEOUT seconds])
# A test program inside a bundle of its own, so that it finds tools exactly as the product does and may exchange them
# without disturbing its neighbours. Settings, data and caches lie in that bundle too, never in the user's own folders.
# DISPLAY: it opens windows and runs under a private X server.
function(vc_test name)
    cmake_parse_arguments(ARG "DISPLAY" "TIMEOUT" "SOURCES;LINK" ${ARGN})
    set(bundle ${CMAKE_BINARY_DIR}/tests/${name}.app)
    add_executable(${name} ${ARG_SOURCES})
    # A test is one source: nothing to gain from a unity build, whose includes make its types look foreign.
    set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${bundle}/Contents/MacOS UNITY_BUILD OFF)
    target_link_libraries(${name} PRIVATE vc_options Qt6::Test ${ARG_LINK})
    vc_bundle_tools(${bundle})
    set(command ${name})
    if(ARG_DISPLAY)
        set(command ${CMAKE_SOURCE_DIR}/tests/with-display $<TARGET_FILE:${name}>)
    endif()
    if(NOT ARG_TIMEOUT)
        set(ARG_TIMEOUT 120)
    endif()
    add_test(NAME ${name} COMMAND ${command})
    # The folder below tests/ is the label, so that a part can be built and run by name.
    file(RELATIVE_PATH label ${CMAKE_SOURCE_DIR}/tests ${CMAKE_CURRENT_SOURCE_DIR})
    if(label MATCHES "^(engine|planning)$")
        add_dependencies(engine-tests ${name})
    endif()
    set(home ${bundle}/home)
    set_tests_properties(${name} PROPERTIES TIMEOUT ${ARG_TIMEOUT} LABELS ${label}
        ENVIRONMENT "XDG_CONFIG_HOME=${home}/config;XDG_DATA_HOME=${home}/data;XDG_CACHE_HOME=${home}/cache;QT_QPA_PLATFORM=$<IF:$<BOOL:${ARG_DISPLAY}>,xcb,offscreen>;LC_ALL=C.UTF-8;TSAN_OPTIONS=die_after_fork=0:suppressions=${CMAKE_SOURCE_DIR}/tests/tsan.supp;LSAN_OPTIONS=suppressions=${CMAKE_SOURCE_DIR}/tests/lsan.supp")
endfunction()
