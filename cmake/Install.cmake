# What `cmake --install` puts where. Icons and pictures are installed by resources/, next to their lists.
#
# The engine is not meant for other programs, so it lies in a folder of its own. Builds of it for newer processors
# stand in glibc-hwcaps/ beside it, where the dynamic loader looks first.
set(LUMIVEX_ENGINE_DIR ${CMAKE_INSTALL_LIBDIR}/lumivex)
file(RELATIVE_PATH engine_from_programs ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_PREFIX}/${LUMIVEX_ENGINE_DIR})

foreach(program lumivex lumivex-render)
    if(TARGET ${program})
        set_target_properties(${program} PROPERTIES INSTALL_RPATH "$ORIGIN/${engine_from_programs}")
        install(TARGETS ${program} RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} BUNDLE DESTINATION .)
    endif()
endforeach()
# Programs that those two start lie elsewhere, since nobody else does.
file(RELATIVE_PATH engine_from_helpers ${CMAKE_INSTALL_FULL_LIBEXECDIR} ${CMAKE_INSTALL_PREFIX}/${LUMIVEX_ENGINE_DIR})
if(TARGET lumivex-read)
    set_target_properties(lumivex-read PROPERTIES INSTALL_RPATH "$ORIGIN/${engine_from_helpers}")
    install(TARGETS lumivex-read RUNTIME DESTINATION ${CMAKE_INSTALL_LIBEXECDIR})
endif()
if(TARGET coreimage)
    install(TARGETS coreimage LIBRARY DESTINATION ${LUMIVEX_ENGINE_DIR} NAMELINK_SKIP)
    get_property(levels GLOBAL PROPERTY LUMIVEX_HWCAPS)
    foreach(level IN LISTS levels)
        install(TARGETS coreimage-${level}
                LIBRARY DESTINATION ${LUMIVEX_ENGINE_DIR}/glibc-hwcaps/x86-64-${level} NAMELINK_SKIP)
    endforeach()
endif()

set(id io.github.lumivex.Lumivex)
install(FILES resources/${id}.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
# The bus starts the program by its full path, which is known only when it is installed. A package is put together
# elsewhere than where it goes.
install(CODE "
    set(prefix \${CMAKE_INSTALL_PREFIX})
    if(DEFINED CPACK_PACKAGING_INSTALL_PREFIX)
        set(prefix \${CPACK_PACKAGING_INSTALL_PREFIX})
    endif()
    set(program \${prefix}/${CMAKE_INSTALL_BINDIR}/lumivex)
    configure_file(\"${CMAKE_SOURCE_DIR}/resources/${id}.service.in\" \"${CMAKE_BINARY_DIR}/${id}.service\" @ONLY)")
install(FILES ${CMAKE_BINARY_DIR}/${id}.service DESTINATION ${CMAKE_INSTALL_DATADIR}/dbus-1/services)

# Software centers load the pictures from the web, so the metainfo has them only where it is known where that is.
set(LUMIVEX_HOMEPAGE "" CACHE STRING "The project's address on the web, under which its docs/ folder can be read")
function(lumivex_metainfo homepage file)
    set(LUMIVEX_ADDRESSES "")
    if(homepage)
        file(READ ${CMAKE_SOURCE_DIR}/resources/${id}.addresses.xml.in addresses)
        string(CONFIGURE "${addresses}" LUMIVEX_ADDRESSES @ONLY)
    endif()
    configure_file(${CMAKE_SOURCE_DIR}/resources/${id}.metainfo.xml.in ${file} @ONLY)
endfunction()
lumivex_metainfo("${LUMIVEX_HOMEPAGE}" ${CMAKE_BINARY_DIR}/${id}.metainfo.xml)
install(FILES ${CMAKE_BINARY_DIR}/${id}.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
foreach(program lumivex lumivex-render)
    set(page ${CMAKE_BINARY_DIR}/docs/${program}.1)
    configure_file(docs/${program}.1 ${page} @ONLY)
    execute_process(COMMAND gzip --best --no-name --force --keep ${page} COMMAND_ERROR_IS_FATAL ANY)
    install(FILES ${page}.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
endforeach()
install(FILES LICENSE docs/copyright README.md DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/doc/lumivex)

if(LUMIVEX_TESTS)
    find_program(PYTHON3 python3)
    if(PYTHON3)
        add_test(NAME bundle_plist COMMAND ${PYTHON3} ${CMAKE_SOURCE_DIR}/tests/resources/bundle_plist.py
                                           ${LUMIVEX_PLIST} ${CMAKE_SOURCE_DIR}/platform/imageio/FileFormats.cpp)
    endif()
    find_program(DESKTOP_FILE_VALIDATE desktop-file-validate)
    find_program(APPSTREAMCLI appstreamcli)
    if(DESKTOP_FILE_VALIDATE)
        add_test(NAME desktop_entry COMMAND ${DESKTOP_FILE_VALIDATE} ${CMAKE_SOURCE_DIR}/resources/${id}.desktop)
    endif()
    if(APPSTREAMCLI)
        set(complete ${CMAKE_BINARY_DIR}/tests/metainfo.xml)
        lumivex_metainfo(https://example.org/lumivex ${complete})
        add_test(NAME appstream COMMAND ${APPSTREAMCLI} validate --no-net ${CMAKE_BINARY_DIR}/${id}.metainfo.xml
                                        ${complete})
    endif()
endif()
