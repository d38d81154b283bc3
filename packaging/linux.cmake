# SPDX-License-Identifier: MIT
# What is installed, always below /usr: cmake --build build/release --target package makes a Debian package of it.
set(id org.example.VideoConverter)
set(installed_bundle lib/video-converter/VideoConverter.app)
set(programs video-converter video-converter-cli)

install(TARGETS ${programs} RUNTIME DESTINATION ${installed_bundle}/Contents/MacOS)
install(FILES ${VC_BUNDLE}/Contents/Info.plist DESTINATION ${installed_bundle}/Contents)
install(DIRECTORY ${VC_BUNDLE}/Contents/Resources DESTINATION ${installed_bundle}/Contents OPTIONAL)

# vc_install_link(<target> <folder> <name>): a link below /usr.
function(vc_install_link target folder name)
    set(link ${CMAKE_CURRENT_BINARY_DIR}/links/${folder}/${name})
    file(MAKE_DIRECTORY ${CMAKE_CURRENT_BINARY_DIR}/links/${folder})
    file(CREATE_LINK ${target} ${link} SYMBOLIC)
    install(FILES ${link} DESTINATION ${folder})
endfunction()
foreach(program IN LISTS programs)
    vc_install_link(../${installed_bundle}/Contents/MacOS/${program} bin ${program})
endforeach()
foreach(tool IN ITEMS ffmpeg ffprobe)
    vc_install_link(../../../../../bin/${tool} ${installed_bundle}/Contents/ffmpeg ${tool})
endforeach()

# vc_install_compressed(<source> <folder> <name>): as <name>.gz, the same bytes at every build.
function(vc_install_compressed source folder name)
    set(compressed ${CMAKE_CURRENT_BINARY_DIR}/compressed/${name}.gz)
    file(MAKE_DIRECTORY ${CMAKE_CURRENT_BINARY_DIR}/compressed)
    add_custom_command(OUTPUT ${compressed}
        COMMAND gzip -9nc ${source} > ${compressed}
        DEPENDS ${source} VERBATIM)
    add_custom_target(compressed-${name} ALL DEPENDS ${compressed})
    install(FILES ${compressed} DESTINATION ${folder})
endfunction()
# The command writes its own options, for its manual page and for the completion of each shell.
set(generated ${CMAKE_CURRENT_BINARY_DIR}/generated)
file(MAKE_DIRECTORY ${generated})
foreach(document IN ITEMS man bash zsh fish)
    add_custom_command(OUTPUT ${generated}/${document}
        COMMAND video-converter-cli --generate ${document} > ${generated}/${document}
        DEPENDS video-converter-cli VERBATIM)
endforeach()
set(page ${generated}/video-converter-cli.1)
add_custom_command(OUTPUT ${page}
    COMMAND sed -e "/^@OPTIONS@/{r ${generated}/man" -e "d}"
        ${CMAKE_CURRENT_SOURCE_DIR}/man/video-converter-cli.1.in > ${page}
    DEPENDS man/video-converter-cli.1.in ${generated}/man VERBATIM)
add_custom_target(generated ALL DEPENDS ${page} ${generated}/bash ${generated}/zsh ${generated}/fish)
vc_install_compressed(${CMAKE_CURRENT_SOURCE_DIR}/man/video-converter.1 share/man/man1 video-converter.1)
vc_install_compressed(${page} share/man/man1 video-converter-cli.1)
vc_install_compressed(${CMAKE_SOURCE_DIR}/CHANGELOG.md share/doc/video-converter changelog)
vc_install_compressed(${CMAKE_CURRENT_SOURCE_DIR}/debian/changelog share/doc/video-converter changelog.Debian)

install(FILES debian/copyright ${CMAKE_SOURCE_DIR}/docs/privacy.md DESTINATION share/doc/video-converter)
install(FILES debian/lintian-overrides DESTINATION share/lintian/overrides RENAME video-converter)
install(FILES ${id}.desktop DESTINATION share/applications)
install(FILES ${id}.metainfo.xml DESTINATION share/metainfo)
install(FILES ${CMAKE_SOURCE_DIR}/app/icons/video-converter.svg
    DESTINATION share/icons/hicolor/scalable/apps RENAME ${id}.svg)
install(FILES ${generated}/bash DESTINATION share/bash-completion/completions RENAME video-converter-cli)
install(FILES ${generated}/zsh DESTINATION share/zsh/vendor-completions RENAME _video-converter-cli)
install(FILES ${generated}/fish DESTINATION share/fish/vendor_completions.d RENAME video-converter-cli.fish)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME video-converter)
set(CPACK_PACKAGE_CONTACT "The Video Converter authors <video-converter@example.org>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "convert a video for another device or format")
set(CPACK_PACKAGE_DESCRIPTION "Drop a video on the window, pick a device, a format or a quality, name the
result and watch it being made. What already suits the target is copied as it
is; only the rest is encoded anew.
.
The package also has a headless command with the same engine.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_PROJECT_CONFIG_FILE ${CMAKE_CURRENT_SOURCE_DIR}/epoch.cmake)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SECTION video)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
# The buttons of message boxes come from the tables of Qt itself.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "ffmpeg, qt6-translations-l10n")
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# The platform themes give the file dialogs of the desktop.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS
    "qt6-wayland, xdg-desktop-portal, qt6-xdgdesktopportal-platformtheme, qt6-gtk-platformtheme")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
include(CPack)

# What the desktop reads is checked with the desktop's own tools.
if(BUILD_TESTING)
    find_program(DESKTOP_FILE_VALIDATE desktop-file-validate REQUIRED)
    find_program(APPSTREAMCLI appstreamcli REQUIRED)
    add_test(NAME desktop_file COMMAND ${DESKTOP_FILE_VALIDATE} ${CMAKE_CURRENT_SOURCE_DIR}/${id}.desktop)
    add_test(NAME metainfo COMMAND ${APPSTREAMCLI} validate --no-net ${CMAKE_CURRENT_SOURCE_DIR}/${id}.metainfo.xml)
endif()
