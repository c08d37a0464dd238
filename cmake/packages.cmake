# What is installed and packed: a program folder that can be moved anywhere, and a Debian package for everybody on a machine.

set(own_folder . COMPONENT portable)
install(TARGETS orvel-tavoren RUNTIME DESTINATION ${own_folder})
install(DIRECTORY ${program_folder}/data/pics DESTINATION data COMPONENT portable)
install(FILES ${texts_file} DESTINATION data COMPONENT portable)
install(DIRECTORY DESTINATION data/saves COMPONENT portable)
install(FILES docs/pruvodce.md docs/navod.md DESTINATION ${own_folder})
install(DIRECTORY docs/obrazky DESTINATION ${own_folder})
install(DIRECTORY LICENSES DESTINATION ${own_folder})

set(icons)
foreach(size 16 24 32 48 64 128 256 512)
    set(icon ${PROJECT_BINARY_DIR}/icons/${size}/orvel-tavoren.png)
    orvel_icon(${size} ${icon})
    list(APPEND icons ${icon})
    install(FILES ${icon} DESTINATION share/icons/hicolor/${size}x${size}/apps COMPONENT deb EXCLUDE_FROM_ALL)
endforeach()
add_custom_target(icons ALL DEPENDS ${icons})
install(FILES art/icon.svg DESTINATION share/icons/hicolor/scalable/apps RENAME orvel-tavoren.svg COMPONENT deb EXCLUDE_FROM_ALL)

set(in_package COMPONENT deb EXCLUDE_FROM_ALL)
install(TARGETS orvel-tavoren RUNTIME DESTINATION lib/games/orvel-tavoren ${in_package})
install(DIRECTORY ${program_folder}/data/pics DESTINATION lib/games/orvel-tavoren/data ${in_package})
install(FILES ${texts_file} DESTINATION lib/games/orvel-tavoren/data ${in_package})
install(PROGRAMS packaging/launcher.sh DESTINATION games RENAME orvel-tavoren ${in_package})
install(FILES packaging/orvel-tavoren.desktop DESTINATION share/applications ${in_package})
install(FILES packaging/orvel-tavoren.metainfo.xml DESTINATION share/metainfo ${in_package})
install(FILES docs/pruvodce.md docs/navod.md packaging/copyright LICENSES/CC-BY-SA-4.0.txt DESTINATION share/doc/orvel-tavoren ${in_package})
install(DIRECTORY docs/obrazky DESTINATION share/doc/orvel-tavoren ${in_package})
# Debian 12 has a lintian that does not know the warning yet and takes an override of it for an error. Unstable has no version.
cmake_host_system_information(RESULT release QUERY DISTRIB_VERSION_ID)
if(NOT release OR release VERSION_GREATER_EQUAL 13)
    install(FILES packaging/lintian-overrides DESTINATION share/lintian/overrides RENAME orvel-tavoren ${in_package})
endif()

# Compressed files are made without a time stamp, so that builds are reproducible.
set(changelog ${PROJECT_BINARY_DIR}/changelog.gz)
add_custom_command(OUTPUT ${changelog}
    COMMAND gzip --best --no-name --stdout packaging/changelog > ${changelog}
    DEPENDS packaging/changelog
    WORKING_DIRECTORY ${PROJECT_SOURCE_DIR}
    VERBATIM)
install(FILES ${changelog} DESTINATION share/doc/orvel-tavoren ${in_package})
set(pages ${changelog})
foreach(language . cs)
    set(page ${PROJECT_BINARY_DIR}/man/${language}/orvel-tavoren.6.gz)
    add_custom_command(OUTPUT ${page}
        COMMAND ${CMAKE_COMMAND} -E make_directory ${PROJECT_BINARY_DIR}/man/${language}
        COMMAND gzip --best --no-name --stdout packaging/man/${language}/orvel-tavoren.6 > ${page}
        DEPENDS packaging/man/${language}/orvel-tavoren.6
        WORKING_DIRECTORY ${PROJECT_SOURCE_DIR}
        VERBATIM)
    list(APPEND pages ${page})
    cmake_path(SET section NORMALIZE share/man/${language}/man6)
    install(FILES ${page} DESTINATION ${section} ${in_package})
endforeach()
add_custom_target(manual ALL DEPENDS ${pages})

set(CPACK_GENERATOR TGZ DEB)
set(CPACK_PROJECT_CONFIG_FILE ${PROJECT_SOURCE_DIR}/cmake/package_kinds.cmake)
set(CPACK_PACKAGE_CONTACT "Orvel Tavoren developers <maintainers@orvel-tavoren.example>")
set(CPACK_PACKAGE_FILE_NAME orvel-tavoren-${PROJECT_VERSION}-linux-${CMAKE_SYSTEM_PROCESSOR})
set(CPACK_STRIP_FILES ON)
# Whatever the packer's umask.
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_COMPONENTS_GROUPING ALL_COMPONENTS_IN_ONE)
set(CPACK_ARCHIVE_COMPONENT_INSTALL ON)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_NAME orvel-tavoren)
set(CPACK_DEBIAN_PACKAGE_SECTION games)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "fonts-liberation, qt6-wayland")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "adventure game aboard a spaceship, in Czech")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION "You are the repairman of the spaceship Alcaster, on the sixth day of a voyage
to peace talks. A replicator in the laboratory has burnt out, and it will not
stay at that. Commands are put together with the mouse; the game and its story
are in Czech.")
include(CPack)
