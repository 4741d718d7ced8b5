# Installation and packages: cmake --install, cpack, ./dev package.
include(GNUInstallDirs)
set(CMAKE_INSTALL_DOCDIR ${CMAKE_INSTALL_DATADIR}/doc/ticklog)

set(id org.ticklog.Ticklog)
install(TARGETS ticklog ticklog-report)
install(FILES resources/completions/ticklog-report DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions)
install(FILES resources/completions/_ticklog-report DESTINATION ${CMAKE_INSTALL_DATADIR}/zsh/vendor-completions)
# Plasma grants what an entry asks for only to the program that the entry names by its full path; the session
# bus also starts the program at that path.
foreach(kind desktop service)
  install(CODE "
    file(READ \"${CMAKE_CURRENT_SOURCE_DIR}/resources/${id}.${kind}\" entry)
    string(REPLACE Exec=ticklog Exec=\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_BINDIR}/ticklog entry \"\${entry}\")
    file(WRITE \"${CMAKE_CURRENT_BINARY_DIR}/${id}.${kind}\" \"\${entry}\")")
endforeach()
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${id}.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${id}.service DESTINATION ${CMAKE_INSTALL_DATADIR}/dbus-1/services)
install(FILES resources/${id}.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES resources/${id}.mime.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages RENAME ${id}.xml)
install(FILES resources/${id}.svg DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
install(FILES resources/application-x-ticklog.svg DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/mimetypes)

# The files for the two helpers. The system bus and polkit look for them below /usr; if Ticklog is installed
# elsewhere, install-helper copies them there.
install(TARGETS TKAXTrusted TicklogLaunchHelper DESTINATION ${CMAKE_INSTALL_LIBEXECDIR}/ticklog)
install(PROGRAMS resources/system/install-helper DESTINATION ${CMAKE_INSTALL_LIBEXECDIR}/ticklog)
install(FILES resources/system/org.ticklog.TKAXTrusted.service DESTINATION ${CMAKE_INSTALL_DATADIR}/dbus-1/system-services)
install(FILES resources/system/org.ticklog.TKAXTrusted.conf DESTINATION ${CMAKE_INSTALL_DATADIR}/dbus-1/system.d)
install(FILES resources/system/org.ticklog.TKAXTrusted.policy DESTINATION ${CMAKE_INSTALL_DATADIR}/polkit-1/actions)
install(FILES resources/system/ticklog-trust.service DESTINATION lib/systemd/system)
install(PROGRAMS resources/system/60-ticklog DESTINATION lib/systemd/user-environment-generators)

# The extension for GNOME Shell, in the form that this release's shell reads, and the program that it reports
# to, which is installed with it. Of the supported releases only Debian 12 has a shell before 45.
cmake_host_system_information(RESULT release QUERY DISTRIB_INFO)
set(extension_form modules)
if(release_ID STREQUAL debian AND release_VERSION_ID STREQUAL 12)
  set(extension_form legacy)
endif()
set(extension_folder ${CMAKE_INSTALL_DATADIR}/gnome-shell/extensions/ticklog@ticklog.org)
install(DIRECTORY resources/gnome-extension/${extension_form}/ DESTINATION ${extension_folder})
install(FILES resources/gnome-extension/service.js resources/gnome-extension/windows.js DESTINATION ${extension_folder})
install(CODE "file(WRITE \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${extension_folder}/executable\"
  \"\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_BINDIR}/ticklog\\n\")")
install(FILES LICENSE DESTINATION ${CMAKE_INSTALL_DOCDIR} RENAME copyright)
# For readers without the program, which has it inside.
install(FILES docs/manual.md DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(DIRECTORY docs/pictures DESTINATION ${CMAKE_INSTALL_DOCDIR} FILES_MATCHING PATTERN "*.png")

# Manuals and changes are compressed, without the time of compression in them.
function(install_compressed source name folder)
  set(compressed ${CMAKE_CURRENT_BINARY_DIR}/${name}.gz)
  cmake_path(ABSOLUTE_PATH source)
  add_custom_command(OUTPUT ${compressed} COMMAND gzip -9nc ${source} > ${compressed} DEPENDS ${source} VERBATIM)
  install(FILES ${compressed} DESTINATION ${folder} OPTIONAL)
  set(compressed_files ${compressed_files} ${compressed} PARENT_SCOPE)
endfunction()
install_compressed(resources/ticklog.1 ticklog.1 ${CMAKE_INSTALL_MANDIR}/man1)
install_compressed(resources/ticklog-report.1 ticklog-report.1 ${CMAKE_INSTALL_MANDIR}/man1)
# The changes in Debian's form, with the date in the description for software centres.
set(maintainer "The Ticklog developers <maintainers@ticklog.org>")
file(STRINGS resources/${id}.metainfo.xml day REGEX "<release version=\"${PROJECT_VERSION}\"")
if(NOT day MATCHES " date=")
  message(FATAL_ERROR "resources/${id}.metainfo.xml does not tell when ${PROJECT_VERSION} was made")
endif()
string(REGEX REPLACE ".* date=\"([0-9-]+)\".*" "\\1" day "${day}")
execute_process(COMMAND date -Rud "${day}" OUTPUT_VARIABLE day OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
set(changes ${CMAKE_CURRENT_BINARY_DIR}/changelog)
add_custom_command(OUTPUT ${changes}
  COMMAND awk -v "date=${day}" -v "maintainer=${maintainer}" -f ${CMAKE_CURRENT_SOURCE_DIR}/scripts/debian-changelog.awk
    ${CMAKE_CURRENT_SOURCE_DIR}/CHANGELOG.md > ${changes}
  DEPENDS CHANGELOG.md scripts/debian-changelog.awk VERBATIM)
install_compressed(${changes} changelog ${CMAKE_INSTALL_DOCDIR})

# Icons in the usual sizes, for desktops that cannot draw the scalable one.
add_executable(icons EXCLUDE_FROM_ALL resources/Icons.cpp)
ticklog_options(icons)
target_link_libraries(icons PRIVATE Qt6::Gui Qt6::Svg)
set(icon_folder ${CMAKE_CURRENT_BINARY_DIR}/hicolor)
add_custom_command(OUTPUT ${icon_folder}/done
  COMMAND icons ${CMAKE_CURRENT_SOURCE_DIR}/resources/${id}.svg ${icon_folder}/%1x%1/apps/${id}.png
  COMMAND icons ${CMAKE_CURRENT_SOURCE_DIR}/resources/application-x-ticklog.svg
    ${icon_folder}/%1x%1/mimetypes/application-x-ticklog.png
  COMMAND ${CMAKE_COMMAND} -E touch ${icon_folder}/done
  DEPENDS icons resources/${id}.svg resources/application-x-ticklog.svg VERBATIM)
# For packages only, not for builds to try out.
add_custom_target(packaged DEPENDS ticklog ticklog-report ${icon_folder}/done ${compressed_files})
install(DIRECTORY ${icon_folder}/ DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor OPTIONAL FILES_MATCHING PATTERN *.png)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME ticklog)
set(CPACK_PACKAGE_VENDOR "The Ticklog developers")
set(CPACK_PACKAGE_CONTACT "${maintainer}")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "see where your time at the computer goes")
set(CPACK_PACKAGE_DESCRIPTION "While its timer runs, Ticklog notices which window is in front and adds
up the time for each application and each of its windows, without being
told anything. The record stays in files that only its user can read.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
# The build folder must not appear in any path within the package.
set(CPACK_SET_DESTDIR ON)
set(CPACK_INSTALL_PREFIX ${CPACK_PACKAGING_INSTALL_PREFIX})
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# When the package is purged, removes what the helper has written.
set(CPACK_DEBIAN_PACKAGE_CONTROL_EXTRA ${CMAKE_CURRENT_SOURCE_DIR}/resources/system/postrm)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "at-spi2-core, polkitd, qt6-wayland, qt6-translations-l10n")
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ
  WORLD_EXECUTE)
include(CPack)
