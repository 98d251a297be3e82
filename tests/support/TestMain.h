#pragma once

#include "IsolatedProfile.h"

#include <QApplication>
#include <QCoreApplication>
#include <QtTest>

namespace TestMain
{

/// Prepares the process before the application object exists: selects the offscreen platform unless the environment
/// names one.
void prepare();

template <class Application, class Test>
int run(int argc, char* argv[])
{
    const IsolatedProfile profile;
    prepare();
    Application application(argc, argv);
    Test test;
    QTEST_SET_MAIN_SOURCE_PATH
    return QTest::qExec(&test, argc, argv);
}

} // namespace TestMain

/// Entry point of a test program without a user interface, on a profile of its own.
#define TOLVAN_CORE_TEST_MAIN(Test)                                                                          \
    int main(int argc, char* argv[])                                                                         \
    {                                                                                                        \
        return TestMain::run<QCoreApplication, Test>(argc, argv);                                            \
    }

/// Entry point of a test program with widgets, on a profile of its own.
#define TOLVAN_GUI_TEST_MAIN(Test)                                                                           \
    int main(int argc, char* argv[])                                                                         \
    {                                                                                                        \
        return TestMain::run<QApplication, Test>(argc, argv);                                                \
    }
