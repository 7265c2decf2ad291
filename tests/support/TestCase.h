#pragma once

#include "IsolatedSettings.h"

#include <QApplication>
#include <QTest>

namespace Test {

// The base of every test object. A warning that the test did not announce with
// QTest::ignoreMessage() fails it; what the offscreen platform says of itself does not count.
class TestCase : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

protected:
    // Called before every test function.
    virtual void prepare() { }
};

template<class TestObject>
int Run(int argc, char **argv)
{
    const IsolatedSettings settings;
    QApplication application(argc, argv);
    TestObject test;
    return QTest::qExec(&test, argc, argv);
}

} // namespace Test

// The main function of a test executable.
#define ORLIMO_TEST_MAIN(TestObject)                                                               \
    int main(int argc, char **argv)                                                                \
    {                                                                                              \
        return Test::Run<TestObject>(argc, argv);                                                  \
    }
