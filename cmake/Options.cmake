# SPDX-License-Identifier: MIT
# One interface target carries the standard, the Qt defines and the warnings; everything links it.

find_program(CCACHE ccache)
if(CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    # Paths count from the build folder, so that one clone's results serve the next.
    set(CMAKE_CXX_COMPILER_LAUNCHER env CCACHE_BASEDIR=${CMAKE_SOURCE_DIR} CCACHE_NOHASHDIR=1 ${CCACHE})
endif()

if(CMAKE_CXX_CLANG_TIDY)
    # The nearest file counts: what moc writes here is checked for next to nothing.
    file(WRITE ${CMAKE_BINARY_DIR}/.clang-tidy "Checks: '-*,misc-static-assert'\n")
endif()

set(VIDEO_CONVERTER_SANITIZE "" CACHE STRING "Sanitizers of this build: 'address,undefined', 'thread' or empty")
option(VIDEO_CONVERTER_WERROR "Treat warnings as errors" OFF)

# Addresses the program may talk to; empty switches the feature off. The development presets leave them all empty.
set(VIDEO_CONVERTER_COLLECTOR_URL "" CACHE STRING "Collection endpoint of the usage events")
set(VIDEO_CONVERTER_FEED_URL "" CACHE STRING "Address of the update feed")
set(VIDEO_CONVERTER_CRASH_URL "" CACHE STRING "Service that takes crash reports")
set(VIDEO_CONVERTER_SITE_URL "" CACHE STRING "Root address of the vendor's web site, with a trailing slash")
set(VIDEO_CONVERTER_UPDATE_KEY "" CACHE STRING "Ed25519 public key (base64) that signs updates")
set(VIDEO_CONVERTER_TRACKING_ID "UA-10000000-1" CACHE STRING "Analytics property of the usage events")

add_library(vc_options INTERFACE)
target_compile_features(vc_options INTERFACE cxx_std_20)
target_compile_definitions(vc_options INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_CAST_FROM_BYTEARRAY QT_NO_URL_CAST_FROM_STRING
    QT_NO_FOREACH QT_NO_KEYWORDS QT_STRICT_ITERATORS QT_NO_NARROWING_CONVERSIONS_IN_CONNECT
    QT_DISABLE_DEPRECATED_BEFORE=0x060400)
target_compile_options(vc_options INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wold-style-cast
    -Woverloaded-virtual -Wnon-virtual-dtor -Wimplicit-fallthrough
    $<$<BOOL:${VIDEO_CONVERTER_WERROR}>:-Werror>
    -ffile-prefix-map=${CMAKE_SOURCE_DIR}=. -ffile-prefix-map=${CMAKE_BINARY_DIR}=.)

if(VIDEO_CONVERTER_SANITIZE)
    target_compile_options(vc_options INTERFACE -fsanitize=${VIDEO_CONVERTER_SANITIZE} -fno-omit-frame-pointer)
    target_link_options(vc_options INTERFACE -fsanitize=${VIDEO_CONVERTER_SANITIZE})
endif()
# Arithmetic that leaves its range stops the program in every build type, without a run-time library.
if(VIDEO_CONVERTER_SANITIZE MATCHES "undefined")
    target_compile_options(vc_options INTERFACE -fsanitize=float-cast-overflow -fno-sanitize-recover=all)
else()
    target_compile_options(vc_options INTERFACE
        -fsanitize=signed-integer-overflow,float-cast-overflow -fsanitize-undefined-trap-on-error)
endif()
