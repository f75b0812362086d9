# What an installation holds, and the Debian package made of it:
#     cmake --install build --prefix /usr/local
#     cd build && cpack -G DEB
include(GNUInstallDirs)

set(package_files ${CMAKE_SOURCE_DIR}/packaging)
set(packed ${CMAKE_BINARY_DIR}/packaging)
set(application_id org.tarnix.Keyboard)

# pack(FILE NAME): a compressed copy below the build folder, without the name and the time in it.
set(packed_files "")
function(pack file name)
  set(output ${packed}/${name}.gz)
  add_custom_command(OUTPUT ${output}
    COMMAND gzip -9nc ${file} > ${output}
    DEPENDS ${file}
    COMMENT "Packing ${name}")
  set(packed_files ${packed_files} ${output} PARENT_SCOPE)
endfunction()

file(MAKE_DIRECTORY ${packed})
pack(${package_files}/debian/changelog changelog)
foreach(program tarnix-keyboard tarnix-virtual-keyboard tarnixctl)
  pack(${package_files}/man/${program}.1 ${program}.1)
  install(FILES ${packed}/${program}.1.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
endforeach()
add_custom_target(tarnix_packed ALL DEPENDS ${packed_files})
add_custom_target(tarnix_all_icons ALL)
add_dependencies(tarnix_all_icons tarnix_icons)

install(TARGETS tarnix-keyboard tarnix-virtual-keyboard tarnixctl RUNTIME)
install(FILES ${package_files}/${application_id}.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${package_files}/${application_id}.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES ${package_files}/70-tarnix-keyboard.rules DESTINATION lib/udev/rules.d)
install(FILES ${package_files}/debian/copyright ${packed}/changelog.gz
  DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/tarnix-keyboard)

set(icons ${CMAKE_BINARY_DIR}/src/res/art/icons)
set(icon_theme ${CMAKE_INSTALL_DATADIR}/icons/hicolor)
foreach(size 16 22 24 32 48 64 128 256)
  install(FILES ${icons}/${size}.png DESTINATION ${icon_theme}/${size}x${size}/apps RENAME ${application_id}.png)
endforeach()
install(FILES ${icons}/scalable.svg DESTINATION ${icon_theme}/scalable/apps RENAME ${application_id}.svg)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME tarnix-keyboard)
set(CPACK_PACKAGE_CONTACT "The Tarnix Keyboard developers <support@tarnix.example>")
set(CPACK_PACKAGE_HOMEPAGE_URL "https://www.tarnix.example/")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "configuration utility of the Tarnix RGB gaming keyboard")
set(CPACK_PACKAGE_DESCRIPTION "Remaps keys, sets the lights, records macros and gives the G-keys their
functions. The keyboard keeps three profiles; the program follows what is set
on the keyboard itself.

The package also holds tarnixctl, which reaches the keyboard and the files
from the command line, and a virtual keyboard for trying things without the
hardware.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# A Latin and a Chinese font; shlibdeps finds the rest. The virtual keyboard preloads a library of umockdev's.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "fonts-inter | fonts-dejavu-core, fonts-wqy-microhei")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "umockdev")
set(CPACK_DEBIAN_PACKAGE_CONTROL_EXTRA ${package_files}/debian/postinst)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
include(CPack)
