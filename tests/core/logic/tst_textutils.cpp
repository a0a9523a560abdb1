#include "Fuzzy.h"
#include "Slug.h"
#include "Version.h"

#include <QTest>

using namespace quorvane;
using namespace Qt::StringLiterals;

// The palette's ranking, version comparison and link slugs.
class TestTextUtils : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fuzzy_data()
    {
        QTest::addColumn<QString>("query");
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("expected"); // INT_MIN: no match
        constexpr int none = std::numeric_limits<int>::min();
        QTest::newRow("blank query matches with 0") << u"  \t"_s << u"Go to Today"_s << 0;
        QTest::newRow("word start and run") << u"go"_s << u"Go to Today"_s << 89;
        QTest::newRow("after a blank") << u"tdy"_s << u"Go to Today"_s << 69;
        QTest::newRow("blanks in query, case") << u"G O"_s << u"go"_s << 98;
        QTest::newRow("hyphen starts a word") << u"b"_s << u"a-b"_s << 57;
        QTest::newRow("underscore doesn't") << u"b"_s << u"a_b"_s << 7;
        QTest::newRow("greedy, no better alignment") << u"ab"_s << u"xa ab"_s << 15;
        QTest::newRow("query longer than text") << u"today"_s << u"tod"_s << none;
        QTest::newRow("out of order") << u"yt"_s << u"Today"_s << none;
        QTest::newRow("can be negative") << u"z"_s << u"abcdefghijklmnopqrstuvwxyz"_s << -16;
        // One user-perceived character each, however it is spelled.
        QTest::newRow("composed vs decomposed") << u"\u00e9"_s << u"e\u0301t\u00e9"_s << 57;
        QTest::newRow("accent isn't the base letter") << u"e"_s << u"\u00e9"_s << none;
        QTest::newRow("emoji counts once") << u"a"_s << u"\U0001F44D\U0001F3FD a"_s << 57;
    }
    void fuzzy()
    {
        QFETCH(QString, query);
        QFETCH(QString, text);
        QFETCH(int, expected);
        QCOMPARE(Fuzzy::score(query, text).value_or(std::numeric_limits<int>::min()), expected);
    }

    void isNewer_data()
    {
        QTest::addColumn<QString>("a");
        QTest::addColumn<QString>("b");
        QTest::addColumn<bool>("newer");
        const std::tuple<const char *, const char *, bool> rows[] = {
            {"2.0", "1.9.9", true},   {"1.10", "1.9", true},  {"1.9", "1.10", false}, {"1.0", "1", false},
            {"1.0.1", "1", true},     {"1", "1.0.1", false},  {"2.0", "2.0", false},  {"1.a", "1.0", false},
            {"1.2rc1", "1.1", false}, {"1..2", "1.1", true},  {"1. 5", "1.0", false}, {"", "", false},
            {"1.\u0665", "1.0", false}, // digits of other scripts are not numbers
            // Too large for 64 bits: 0, not a wrapped-around negative number.
            {"1.0", "1.99999999999999999999", false}, {"1.0", "1.9223372036854775808", false},
            {"1.9223372036854775807", "1.1", true}};
        for (const auto &[a, b, newer] : rows)
            QTest::addRow("%s than %s", a, b) << QString::fromUtf8(a) << QString::fromUtf8(b) << newer;
    }
    void isNewer()
    {
        QFETCH(QString, a);
        QFETCH(QString, b);
        QFETCH(bool, newer);
        QCOMPARE(Version::isNewer(a, b), newer);
    }

    void slug_data()
    {
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("expected");
        QTest::newRow("punctuation collapses") << u"Coffee & Chat!!"_s << u"coffee-chat"_s;
        QTest::newRow("only punctuation") << u"?! & --"_s << u"meeting"_s;
        QTest::newRow("empty") << QString() << u"meeting"_s;
        QTest::newRow("trimmed both ends") << u"--30 min_Sync--"_s << u"30-min-sync"_s;
        QTest::newRow("accents and scripts kept") << u"Café Встреча 東京"_s << u"café-встреча-東京"_s;
        QTest::newRow("combining accent stays") << u"Cafe\u0301 1"_s << u"caf\u00e9-1"_s;
        QTest::newRow("cut to 40") << QString(50, u'a') << QString(40, u'a');
        // q with a dot above has no composed form: two code units, one character.
        QTest::newRow("cut counts characters") << u"q\u0307"_s.repeated(45) << u"q\u0307"_s.repeated(40);
        QTest::newRow("cut may leave a hyphen") << QString(39, u'x') + u" yz"_s << QString(39, u'x') + u"-"_s;
    }
    void slug()
    {
        QFETCH(QString, title);
        QFETCH(QString, expected);
        QCOMPARE(Slug::make(title), expected);
    }

    void uniqueSlug()
    {
        QCOMPARE(Slug::unique(u"Intro"_s, {u"other"_s}), u"intro"_s);
        QCOMPARE(Slug::unique(u"Intro"_s, {u"intro"_s, u"intro-2"_s}), u"intro-3"_s);
        QCOMPARE(Slug::unique(u"Intro"_s, {u"intro"_s, u"intro-3"_s}), u"intro-2"_s);
        QCOMPARE(Slug::unique(QString(50, u'a'), {QString(40, u'a')}), QString(40, u'a') + u"-2"_s);
    }
};

QTEST_APPLESS_MAIN(TestTextUtils)
#include "tst_textutils.moc"
