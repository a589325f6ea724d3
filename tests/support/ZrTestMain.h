#pragma once

#include <QtTest/QtTest>
#if defined(QT_WIDGETS_LIB) // the thread sanitizer's build has none
#include <QtWidgets/QApplication>
#endif

/// Prepares the process of a test: offscreen unless the caller chose a platform, and with settings,
/// configuration and cache in a folder of its own that goes away with the object.
class ZrTestProcess
{
public:
    ZrTestProcess();
    ~ZrTestProcess();

private:
    Q_DISABLE_COPY(ZrTestProcess)
    class Private;
    Private *d;
};

/// main() of a test that needs widgets.
#define ZR_TEST_MAIN(TestClass)                                                                              \
    int main(int argc, char *argv[])                                                                         \
    {                                                                                                        \
        const ZrTestProcess process;                                                                         \
        QApplication app(argc, argv);                                                                        \
        TestClass test;                                                                                      \
        return QTest::qExec(&test, argc, argv);                                                              \
    }

/// main() of a test that needs no widgets.
#define ZR_TEST_GUILESS_MAIN(TestClass)                                                                      \
    int main(int argc, char *argv[])                                                                         \
    {                                                                                                        \
        const ZrTestProcess process;                                                                         \
        QCoreApplication app(argc, argv);                                                                    \
        TestClass test;                                                                                      \
        return QTest::qExec(&test, argc, argv);                                                              \
    }
