#include "Slug.h"

#include <QTest>

using namespace quorvane;
using namespace Qt::StringLiterals;

class TestSlug : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void make_data()
    {
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("expected");
        QTest::newRow("punctuation collapses") << u"Coffee & Chat!!"_s << u"coffee-chat"_s;
        QTest::newRow("only punctuation") << u"?! & --"_s << u"meeting"_s;
        QTest::newRow("empty") << QString() << u"meeting"_s;
        QTest::newRow("trimmed both ends") << u"--Intro call--"_s << u"intro-call"_s;
        QTest::newRow("digits kept") << u"30 min Sync"_s << u"30-min-sync"_s;
        QTest::newRow("accents kept") << u"Café Crème"_s << u"café-crème"_s;
        QTest::newRow("combining accent stays with its letter") << u"Cafe\u0301 1"_s << u"caf\u00e9-1"_s;
        QTest::newRow("other scripts kept") << u"Встреча 東京"_s << u"встреча-東京"_s;
        QTest::newRow("underscore replaced") << u"one_two"_s << u"one-two"_s;
        QTest::newRow("50 letters cut to 40") << QString(50, u'a') << QString(40, u'a');
        // q with a dot above has no composed form: two code units, one character.
        QTest::newRow("cut counts characters, not code units")
            << u"q\u0307"_s.repeated(45) << u"q\u0307"_s.repeated(40);
        QTest::newRow("cut may leave a final hyphen")
            << QString(39, u'x') + u" yz"_s << QString(39, u'x') + u"-"_s;
    }
    void make()
    {
        QFETCH(QString, title);
        QFETCH(QString, expected);
        QCOMPARE(Slug::make(title), expected);
    }

    void unique_data()
    {
        QTest::addColumn<QString>("title");
        QTest::addColumn<QStringList>("existing");
        QTest::addColumn<QString>("expected");
        QTest::newRow("free") << u"Intro"_s << QStringList{u"other"_s} << u"intro"_s;
        QTest::newRow("next number") << u"Intro"_s << QStringList{u"intro"_s, u"intro-2"_s} << u"intro-3"_s;
        QTest::newRow("gap is used") << u"Intro"_s << QStringList{u"intro"_s, u"intro-3"_s} << u"intro-2"_s;
        QTest::newRow("number beyond 40")
            << QString(50, u'a') << QStringList{QString(40, u'a')} << QString(40, u'a') + u"-2"_s;
    }
    void unique()
    {
        QFETCH(QString, title);
        QFETCH(QStringList, existing);
        QFETCH(QString, expected);
        QCOMPARE(Slug::unique(title, QSet<QString>(existing.cbegin(), existing.cend())), expected);
    }
};

QTEST_APPLESS_MAIN(TestSlug)
#include "tst_slug.moc"
