# The showcase as a user starts it.
if(TARGET trelio-showcase)
    tolvan_add_test(tst_showcase ALONE TIMEOUT 300)
    add_dependencies(tst_showcase trelio-showcase)
    # The window by itself, without the pages.
    set(showcase "${CMAKE_SOURCE_DIR}/ExPluginShell/showcase")
    tolvan_add_test(tst_showcasewindow SOURCES tst_showcasewindow.cpp "${showcase}/ShowcaseWindow.cpp")
    target_include_directories(tst_showcasewindow PRIVATE "${showcase}")
    tolvan_register_desktop_tests(tst_showcasewindow)
    if(NOT WIN32)
        tolvan_register_test(tst_showcasewindow_x11 LABELS x11 COMMAND
            "${CMAKE_CURRENT_SOURCE_DIR}/support/with-x-server.sh" $<TARGET_FILE:tst_showcasewindow>)
    endif()
endif()
