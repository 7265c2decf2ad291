#include "TestCase.h"

#include <QRegularExpression>

namespace Test {

void TestCase::init()
{
    QTest::failOnWarning(
            QRegularExpression(QStringLiteral("^(?!This plugin does not support ).*")));
    prepare();
}

} // namespace Test
