# What Finder and the Dock know of the program on macOS. `macdeployqt lumivex.app` afterwards puts Qt and the engine
# into the bundle, which can then be copied to other machines.
set(LUMIVEX_PLIST ${CMAKE_BINARY_DIR}/Info.plist)
configure_file(resources/Info.plist.in ${LUMIVEX_PLIST} @ONLY)

if(APPLE)
    # The icon in the sizes and under the names that iconutil asks for.
    set(iconset ${CMAKE_BINARY_DIR}/Lumivex.iconset)
    set(copies)
    foreach(side 16 32 128 256)
        math(EXPR double "2 * ${side}")
        list(APPEND copies
             COMMAND ${CMAKE_COMMAND} -E copy ${side}.png ${iconset}/icon_${side}x${side}.png
             COMMAND ${CMAKE_COMMAND} -E copy ${double}.png ${iconset}/icon_${side}x${side}@2x.png)
    endforeach()
    add_custom_command(OUTPUT ${CMAKE_BINARY_DIR}/Lumivex.icns
        COMMAND ${CMAKE_COMMAND} -E make_directory ${iconset}
        ${copies}
        COMMAND iconutil --convert icns --output ${CMAKE_BINARY_DIR}/Lumivex.icns ${iconset}
        WORKING_DIRECTORY ${CMAKE_SOURCE_DIR}/resources/icons/sizes
        VERBATIM)
    add_custom_target(lumivex_icns DEPENDS ${CMAKE_BINARY_DIR}/Lumivex.icns)
    add_dependencies(lumivex lumivex_icns)
    set_target_properties(lumivex PROPERTIES MACOSX_BUNDLE ON MACOSX_BUNDLE_INFO_PLIST ${LUMIVEX_PLIST})
    add_custom_command(TARGET lumivex POST_BUILD
        COMMAND ${CMAKE_COMMAND} -E make_directory $<TARGET_BUNDLE_CONTENT_DIR:lumivex>/Resources
        COMMAND ${CMAKE_COMMAND} -E copy ${CMAKE_BINARY_DIR}/Lumivex.icns
                $<TARGET_BUNDLE_CONTENT_DIR:lumivex>/Resources
        VERBATIM)
endif()
