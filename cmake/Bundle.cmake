# SPDX-License-Identifier: MIT
# The bundle VideoConverter.app, the same layout on every system. The tools in it are links to the system's own.

find_program(FFMPEG_EXECUTABLE ffmpeg)
find_program(FFPROBE_EXECUTABLE ffprobe)
foreach(tool IN ITEMS FFMPEG FFPROBE)
    if(NOT ${tool}_EXECUTABLE)
        string(TOLOWER ${tool} name)
        message(FATAL_ERROR "${name} was not found. Video Converter drives it as a child process: install the "
            "package 'ffmpeg', or pass -D${tool}_EXECUTABLE=<path to ${name}>.")
    endif()
endforeach()

set(VC_BUNDLE ${CMAKE_BINARY_DIR}/VideoConverter.app)

# vc_bundle_tools(<bundle>): links to the tools in <bundle>/Contents/ffmpeg.
function(vc_bundle_tools bundle)
    file(MAKE_DIRECTORY ${bundle}/Contents/ffmpeg ${bundle}/Contents/MacOS)
    file(CREATE_LINK ${FFMPEG_EXECUTABLE} ${bundle}/Contents/ffmpeg/ffmpeg SYMBOLIC)
    file(CREATE_LINK ${FFPROBE_EXECUTABLE} ${bundle}/Contents/ffmpeg/ffprobe SYMBOLIC)
endfunction()

# vc_bundle_program(<target>): puts a program into Contents/MacOS of the bundle.
function(vc_bundle_program target)
    set_target_properties(${target} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${VC_BUNDLE}/Contents/MacOS)
endfunction()

vc_bundle_tools(${VC_BUNDLE})
configure_file(${CMAKE_CURRENT_LIST_DIR}/Info.plist.in ${VC_BUNDLE}/Contents/Info.plist @ONLY)
