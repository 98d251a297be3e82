# The frame: logging, storage, settings, state, start-up, loading and unloading.

tolvan_add_test(tst_logging INTERNAL)
tolvan_add_test(tst_settings ALONE)
tolvan_add_test(tst_temporarysettings)
tolvan_add_test(tst_suiteconfiguration LIBRARIES files_support)
add_executable(suite_writer support/suite_writer.cpp)
target_link_libraries(suite_writer PRIVATE Tolvan::UtilsDllTrelioFrame project_options)
add_dependencies(tst_suiteconfiguration suite_writer)
tolvan_add_test(tst_storagelocation)
tolvan_add_test(tst_applicationstate ALONE)

# The start-up is tested with logger libraries of the tests' own, by a program that is copied beside them.
tolvan_add_test(tst_loggerstartup ALONE)
add_executable(logger_startup_child support/logger_startup_child.cpp $<TARGET_OBJECTS:UtilsDllObjects>)
target_compile_definitions(logger_startup_child PRIVATE UTILSDLL_STATIC)
target_link_libraries(logger_startup_child PRIVATE test_support UtilsDllObjects project_options)
foreach(variant "" _no_export _null)
    string(TOUPPER "FAKE_LOGGER${variant}" definition)
    add_library(fake_logger${variant} MODULE support/fake_logger.cpp)
    target_compile_definitions(fake_logger${variant} PRIVATE ${definition})
    target_include_directories(fake_logger${variant} PRIVATE "${CMAKE_SOURCE_DIR}/ExPluginShell/modules")
    target_link_libraries(fake_logger${variant} PRIVATE Qt5::Core project_options)
    set_target_properties(fake_logger${variant} PROPERTIES PREFIX "" SUFFIX ".dll" POSITION_INDEPENDENT_CODE ON)
endforeach()

tolvan_add_test(tst_logger STANDALONE LABELS threads)
tolvan_add_test(tst_processinformation)
target_compile_definitions(tst_processinformation PRIVATE
    TEST_FILE_VERSION="$<$<BOOL:${WIN32}>:${TEST_FILE_VERSION}>")

# The library's own question for a loaded module tells whether it is in memory.
tolvan_add_test(tst_libraryload STANDALONE SOURCES tst_libraryload.cpp
    ../ExPluginShell/modules/utilsDll/platform/Modules_$<IF:$<BOOL:${WIN32}>,win,unix>.cpp)
target_compile_definitions(tst_libraryload PRIVATE UTILSDLL_FILE_NAME="$<TARGET_FILE_NAME:UtilsDllTrelioFrame>")
target_include_directories(tst_libraryload PRIVATE ../ExPluginShell/modules/utilsDll)
target_link_libraries(tst_libraryload PRIVATE ${CMAKE_DL_LIBS})
add_dependencies(tst_libraryload fake_logger) # plays another module
