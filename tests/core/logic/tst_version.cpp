#include "Version.h"

#include <QTest>

using namespace quorvane;
using namespace Qt::StringLiterals;

class TestVersion : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isNewer_data()
    {
        QTest::addColumn<QString>("a");
        QTest::addColumn<QString>("b");
        QTest::addColumn<bool>("newer");
        QTest::newRow("major") << u"2.0"_s << u"1.9.9"_s << true;
        QTest::newRow("numeric, not textual") << u"1.10"_s << u"1.9"_s << true;
        QTest::newRow("textual order would say newer") << u"1.9"_s << u"1.10"_s << false;
        QTest::newRow("missing piece is 0") << u"1.0"_s << u"1"_s << false;
        QTest::newRow("extra nonzero piece") << u"1.0.1"_s << u"1"_s << true;
        QTest::newRow("shorter is older") << u"1"_s << u"1.0.1"_s << false;
        QTest::newRow("equal") << u"2.0"_s << u"2.0"_s << false;
        QTest::newRow("letters count as 0") << u"1.a"_s << u"1.0"_s << false;
        QTest::newRow("pre-release piece is 0") << u"1.2rc1"_s << u"1.1"_s << false;
        QTest::newRow("letters lose to 1") << u"1.a"_s << u"1.1"_s << false;
        QTest::newRow("empty pieces dropped") << u"1..2"_s << u"1.1"_s << true;
        QTest::newRow("blank inside a piece is not a number") << u"1. 5"_s << u"1.0"_s << false;
        QTest::newRow("digits of other scripts are not numbers") << u"1.\u0665"_s << u"1.0"_s << false;
        // Too large for 64 bits: 0, not a wrapped-around negative number.
        QTest::newRow("too large is 0") << u"1.0"_s << u"1.99999999999999999999"_s << false;
        QTest::newRow("one past the largest is 0") << u"1.0"_s << u"1.9223372036854775808"_s << false;
        QTest::newRow("largest 64-bit piece") << u"1.9223372036854775807"_s << u"1.1"_s << true;
        QTest::newRow("empty texts") << QString() << QString() << false;
    }
    void isNewer()
    {
        QFETCH(QString, a);
        QFETCH(QString, b);
        QFETCH(bool, newer);
        QCOMPARE(Version::isNewer(a, b), newer);
    }
};

QTEST_APPLESS_MAIN(TestVersion)
#include "tst_version.moc"
