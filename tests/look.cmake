# The look: style, style sheets, dialogs, drawing.
tolvan_add_test(tst_customstyle)
tolvan_add_test(tst_buttonshift)
tolvan_add_test(tst_applicationstyle INTERNAL)
if(UTILSDLL_WITH_BUNDLES)
    tolvan_add_test(tst_stylesheets)
    tolvan_add_test(tst_theme)
    tolvan_register_desktop_tests(tst_stylesheets tst_theme)
endif()
tolvan_register_desktop_tests(tst_customstyle tst_buttonshift tst_applicationstyle)
if(NOT CMAKE_CROSSCOMPILING)
    find_package(Python3 REQUIRED COMPONENTS Interpreter)
    tolvan_register_test(check_stylesheets COMMAND Python3::Interpreter
        "${CMAKE_CURRENT_SOURCE_DIR}/checks/stylesheets.py"
        "${CMAKE_SOURCE_DIR}/ExPluginShell/modules/utilsDll/resources")
endif()
