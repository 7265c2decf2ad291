#pragma once

#include <QApplication>
#include <QSettings>
#include <QTemporaryDir>
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

// Keeps the settings of the process in a temporary folder, which goes when the object does.
class IsolatedSettings
{
public:
    IsolatedSettings();

    QString Folder() const { return m_folder.path(); }

private:
    QTemporaryDir m_folder;
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
