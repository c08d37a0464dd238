# Read by CPack for each kind of package in turn.
if(CPACK_GENERATOR STREQUAL "DEB")
    set(CPACK_COMPONENTS_ALL deb)
    set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
else()
    set(CPACK_COMPONENTS_ALL portable)
endif()
