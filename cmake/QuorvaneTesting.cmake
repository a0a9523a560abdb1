# quorvane_add_test(NAME name SOURCES ... LIBS ... LABEL unit|integration|ui|e2e [TIMEOUT s]
#                   [WRAPPER command ...])
# WRAPPER runs the test binary through a command, such as tests/support/run-in-session.
#
# Tests that use the session's one keyring (and its "api-token" item) never run at once.
set(QUORVANE_KEYRING_TESTS
    tst_keychain tst_device_sign_in tst_appmodel_cycle tst_sign_in_panel)

function(quorvane_add_test)
    cmake_parse_arguments(T "" "NAME;LABEL;TIMEOUT" "SOURCES;LIBS;WRAPPER" ${ARGN})
    add_executable(${T_NAME} ${T_SOURCES})
    target_link_libraries(${T_NAME} PRIVATE Qt6::Test quorvane_options ${T_LIBS})
    target_include_directories(${T_NAME} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
    add_test(NAME ${T_NAME} COMMAND ${T_WRAPPER} $<TARGET_FILE:${T_NAME}>)
    if(NOT T_TIMEOUT)
        set(T_TIMEOUT 120)
    endif()
    set_tests_properties(${T_NAME} PROPERTIES
        LABELS "${T_LABEL}" TIMEOUT ${T_TIMEOUT}
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;QUORVANE_SOURCE_DIR=${PROJECT_SOURCE_DIR};QUORVANE_BINARY_DIR=${PROJECT_BINARY_DIR}")
    if(T_NAME IN_LIST QUORVANE_KEYRING_TESTS)
        set_tests_properties(${T_NAME} PROPERTIES RESOURCE_LOCK session-keyring)
    endif()
endfunction()
