# SPDX-License-Identifier: MIT
# Untested: cmake --build build/release --target dmg. The tools in the image are copies, since macOS has none of its own.
find_program(MACDEPLOYQT macdeployqt HINTS ${Qt6_DIR}/../../../bin)
set(image ${CMAKE_BINARY_DIR}/VideoConverter-${PROJECT_VERSION}.dmg)
set(stage ${CMAKE_BINARY_DIR}/dmg)
add_custom_target(dmg
    COMMAND ${CMAKE_COMMAND} -E rm -rf ${stage} ${image}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${stage}
    COMMAND cp -RL ${VC_BUNDLE} ${stage}/
    COMMAND ${MACDEPLOYQT} ${stage}/VideoConverter.app
        -executable=${stage}/VideoConverter.app/Contents/MacOS/video-converter-cli
    COMMAND ${CMAKE_COMMAND} -E create_symlink /Applications ${stage}/Applications
    COMMAND hdiutil create -volname "Video Converter" -srcfolder ${stage} -format UDZO ${image}
    DEPENDS video-converter video-converter-cli
    VERBATIM)
