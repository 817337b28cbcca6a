# `cpack -G DEB` in the build folder makes a Debian package. Build the package preset for it.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME lumivex)
set(CPACK_PACKAGE_VENDOR Lumivex)
set(LUMIVEX_PACKAGER "Lumivex <lumivex@localhost>" CACHE STRING "Who answers for the package: name <address>")
set(CPACK_PACKAGE_CONTACT "${LUMIVEX_PACKAGER}")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "${PROJECT_DESCRIPTION}")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
    "Shows one picture in one window: pick a filter, tune it while the picture
follows, apply it, pick the next, save. Also has effects in space and
generated ones, and lumivex-render, which renders
single filters without a display.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION graphics)
# Linked libraries are found by dpkg-shlibdeps; the engine is our own and private, hence no package's.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_BINARY_DIR}/lib)
# What is loaded while it runs: the window system, OpenGL's drivers, SVG icons, a font.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "qt6-qpa-plugins, libqt6svg6")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "libgl1-mesa-dri, qt6-wayland, fonts-inter | fonts-dejavu-core, qt6-translations-l10n")
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "qt6-gtk-platformtheme")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
include(CPack)
