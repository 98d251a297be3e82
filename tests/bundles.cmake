# The icons are made by a Python program on the building machine; they are the same for every target.
if(NOT CMAKE_CROSSCOMPILING)
    find_package(Qt5 5.15 REQUIRED COMPONENTS Svg)
    find_package(Python3 REQUIRED COMPONENTS Interpreter)
    tolvan_add_test(tst_icons STANDALONE LIBRARIES Qt5::Svg)
    target_compile_definitions(tst_icons PRIVATE
        PYTHON="${Python3_EXECUTABLE}" ICON_TOOL="${CMAKE_SOURCE_DIR}/tools/icons/make_icons.py"
        ICON_PALETTE="${CMAKE_SOURCE_DIR}/ExPluginShell/modules/utilsDll/resources/palette.json")
    add_subdirectory("${CMAKE_SOURCE_DIR}/tools/icons" "${CMAKE_BINARY_DIR}/tools/icons")
endif()

# Resource bundles and languages; the data that is the same for every target is checked where it is made.
if(UTILSDLL_WITH_BUNDLES)
    tolvan_add_test(tst_bundles STANDALONE)
    tolvan_add_test(tst_languagemanager)
    tolvan_register_desktop_tests(tst_languagemanager)
    # Shows real message boxes where the system has its own.
    tolvan_add_test(tst_errstrings SOURCES tst_errstrings.cpp support/FatalBoxes_$<IF:$<BOOL:${WIN32}>,win,unix>.cpp
        $<$<NOT:$<BOOL:${WIN32}>>:${CMAKE_CURRENT_SOURCE_DIR}/support/AllocationCounter.cpp>)
    set_property(TEST tst_errstrings APPEND PROPERTY ENVIRONMENT TOLVAN_TEST_PLATFORM=windows)
endif()
if(UTILSDLL_WITH_BUNDLES AND NOT CMAKE_CROSSCOMPILING)
    set(resources "${CMAKE_SOURCE_DIR}/ExPluginShell/modules/utilsDll/resources")
    get_target_property(bundles UtilsDllBundles BINARY_DIR)
    tolvan_register_test(check_calibration COMMAND Python3::Interpreter
        "${CMAKE_CURRENT_SOURCE_DIR}/checks/calibration.py" "${bundles}/calibration/calibration/db/CAFList5.db")
    tolvan_register_test(check_translations COMMAND Python3::Interpreter
        "${CMAKE_CURRENT_SOURCE_DIR}/checks/translations.py" "${LUPDATE_EXECUTABLE}" "${resources}/translations"
        "${CMAKE_SOURCE_DIR}/ExPluginShell/modules/utilsDll")
    find_program(XMLLINT_EXECUTABLE xmllint REQUIRED)
    tolvan_register_test(check_correction_rules COMMAND "${XMLLINT_EXECUTABLE}" --noout
        --schema "${resources}/other/CorrectionsStateMachine.xsd" "${resources}/other/CorrectionsStateMachine.xml")
endif()
