# Warnings for our own targets, and hardening for release builds.
add_library(quorvane_options INTERFACE)
target_compile_options(quorvane_options INTERFACE
    -Wall -Wextra -Wpedantic -Wno-missing-field-initializers
    -Werror=format-security -Werror=return-type)
target_compile_definitions(quorvane_options INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_URL_CAST_FROM_STRING QT_NO_KEYWORDS)

if(QUORVANE_HARDENING)
    # Position-independent code comes from CMAKE_POSITION_INDEPENDENT_CODE as -fPIC. Qt must not
    # be linked from -fPIE objects: its functions and meta-objects would then have two addresses,
    # one in the executable and one in the library, and Qt compares them.
    target_compile_options(quorvane_options INTERFACE
        -fstack-protector-strong -D_FORTIFY_SOURCE=2)
    target_link_options(quorvane_options INTERFACE -Wl,-z,relro,-z,now -pie)
    set(CMAKE_POSITION_INDEPENDENT_CODE ON)
endif()
