if(UTILSDLL_SANITIZE MATCHES thread)
    target_sources(test_support INTERFACE "${CMAKE_CURRENT_SOURCE_DIR}/support/ToolkitLocks_tsan.cpp")
    add_executable(data_race support/data_race.cpp)
    target_link_libraries(data_race PRIVATE test_support project_options Tolvan::UtilsDllTrelioFrame)
    tolvan_register_test(data_race COMMAND data_race LABELS threads)
    add_dependencies(thread_tests data_race)
    set_tests_properties(data_race PROPERTIES PASS_REGULAR_EXPRESSION "data race .*data_race.cpp:[0-9]+ in doRun")
endif()

# The asynchronous helpers. Label "threads": passed under the thread sanitizer as well.
tolvan_add_test(tst_delayedcall)
tolvan_add_test(tst_delayedcall_threads LABELS threads)
tolvan_add_test(tst_waiting LABELS threads)
tolvan_add_test(tst_excludeinputloop)
tolvan_add_test(tst_runnableitem LABELS threads)
tolvan_add_test(tst_completionwaiter LABELS threads)
# Linked from two sources alone, because it compiles a third one into itself.
add_executable(tst_delayedcall_dispatch tst_delayedcall_dispatch.cpp ../ExPluginShell/modules/utilsDll/Logging.cpp)
target_compile_definitions(tst_delayedcall_dispatch PRIVATE UTILSDLL_STATIC)
target_include_directories(tst_delayedcall_dispatch PRIVATE ../ExPluginShell/modules/utilsDll)
target_link_libraries(tst_delayedcall_dispatch PRIVATE test_support project_options)
tolvan_register_test(tst_delayedcall_dispatch COMMAND tst_delayedcall_dispatch)

# Does not link the library: it loads and unloads it.
add_executable(tst_delayedcall_unload tst_delayedcall_unload.cpp)
target_link_libraries(tst_delayedcall_unload PRIVATE test_support project_options)
add_dependencies(tst_delayedcall_unload UtilsDllTrelioFrame)
tolvan_register_test(tst_delayedcall_unload COMMAND tst_delayedcall_unload)
# Real input: an X server with a window manager, and its means to play mouse and keyboard.
find_program(XVFB_PROGRAM Xvfb)
find_program(OPENBOX_PROGRAM openbox)
if(NOT WIN32)
    find_package(X11)
endif()
if(XVFB_PROGRAM AND OPENBOX_PROGRAM AND X11_XTest_FOUND AND NOT WIN32)
    add_executable(tst_realinput tst_realinput.cpp)
    target_link_libraries(tst_realinput PRIVATE
        test_support project_options Tolvan::UtilsDllTrelioFrame X11::X11 X11::Xtst)
    tolvan_register_test(tst_realinput
        COMMAND "${CMAKE_CURRENT_SOURCE_DIR}/support/with-x-server.sh" $<TARGET_FILE:tst_realinput>)
endif()
