# SPDX-License-Identifier: MIT
# Read by cpack itself: every time in the package is that of the commit, so that two builds give the same bytes.
if(NOT DEFINED ENV{SOURCE_DATE_EPOCH})
    execute_process(COMMAND git log -1 --format=%ct
        WORKING_DIRECTORY ${CMAKE_CURRENT_LIST_DIR}
        OUTPUT_VARIABLE epoch OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET)
    if(epoch)
        set(ENV{SOURCE_DATE_EPOCH} ${epoch})
    endif()
endif()
