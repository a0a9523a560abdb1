#include "Fuzzy.h"

#include <QTest>

using namespace quorvane;
using namespace Qt::StringLiterals;

class TestFuzzy : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void score_data()
    {
        QTest::addColumn<QString>("query");
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("expected"); // INT_MIN: no match
        constexpr int none = std::numeric_limits<int>::min();
        QTest::newRow("blank query matches with 0") << u"  \t"_s << u"Go to Today"_s << 0;
        QTest::newRow("empty query, empty text") << QString() << QString() << 0;
        QTest::newRow("word start and run") << u"go"_s << u"Go to Today"_s << 89;
        QTest::newRow("after a blank") << u"tdy"_s << u"Go to Today"_s << 69;
        QTest::newRow("blanks in query ignored") << u"g o"_s << u"Go to Today"_s << 89;
        QTest::newRow("case folded") << u"GO"_s << u"go"_s << 98;
        QTest::newRow("hyphen starts a word") << u"b"_s << u"a-b"_s << 57;
        QTest::newRow("underscore doesn't") << u"b"_s << u"a_b"_s << 7;
        QTest::newRow("slash doesn't") << u"b"_s << u"a/b"_s << 7;
        QTest::newRow("greedy, no better alignment") << u"ab"_s << u"xa ab"_s << 15;
        QTest::newRow("query longer than text") << u"today"_s << u"tod"_s << none;
        QTest::newRow("out of order") << u"yt"_s << u"Today"_s << none;
        QTest::newRow("can be negative") << u"z"_s << u"abcdefghijklmnopqrstuvwxyz"_s << -16;
        // One user-perceived character each, however it is spelled.
        QTest::newRow("composed query, decomposed text") << u"\u00e9"_s << u"e\u0301t\u00e9"_s << 57;
        QTest::newRow("accent isn't the base letter") << u"e"_s << u"\u00e9"_s << none;
        QTest::newRow("emoji counts once") << u"a"_s << u"\U0001F44D\U0001F3FD a"_s << 57;
    }
    void score()
    {
        QFETCH(QString, query);
        QFETCH(QString, text);
        QFETCH(int, expected);
        const std::optional<int> result = Fuzzy::score(query, text);
        QCOMPARE(result.value_or(std::numeric_limits<int>::min()), expected);
    }
};

QTEST_APPLESS_MAIN(TestFuzzy)
#include "tst_fuzzy.moc"
