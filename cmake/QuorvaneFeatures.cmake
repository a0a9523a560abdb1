# The app's features. Each is one folder on every side that has it: src/app/<feature>,
# src/ui/<feature>, tests/app/<feature>, tests/ui/<feature>, each with its own CMakeLists.txt.
# A new screen adds its name here and its row to the view table (src/app/shell/ViewTable.cpp).
set(QUORVANE_FEATURES
    model
    components
    shell
    main
    today
    bookings
    types
    availability
    polls
    insights
    tray
    onboarding
    about
    share
    palette
    updates
    settings
)

# Adds the folder of every feature that the current source directory has.
macro(quorvane_add_features)
    foreach(feature IN LISTS QUORVANE_FEATURES)
        if(EXISTS ${CMAKE_CURRENT_SOURCE_DIR}/${feature}/CMakeLists.txt)
            add_subdirectory(${feature})
        endif()
    endforeach()
endmacro()
