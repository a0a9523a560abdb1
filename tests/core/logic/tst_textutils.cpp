// The small text makers: countdowns, the palette's ranking, version comparison, link slugs
// and the search of typed text.
#include "Countdown.h"
#include "Fuzzy.h"
#include "Slug.h"
#include "TextSearch.h"
#include "Version.h"

#include <QTest>

using namespace quorvane;
using namespace Qt::StringLiterals;

namespace {
const Instant now(QDate(2026, 3, 10), QTime(12, 0), Qt::UTC);
} // namespace

class TestTextUtils : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Whatever the text's letters, a typed query is found ignoring case, and only there.
    void search_data()
    {
        QTest::addColumn<QString>("query");
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("found");
        QTest::newRow("ASCII, any case") << u"ANN"_s << u"hannah@x.io"_s << true;
        QTest::newRow("ASCII, not there") << u"ann"_s << u"anna"_s.left(2) << false;
        QTest::newRow("after an accented letter") << u"ann"_s << u"Tomás Ann"_s << true;
        QTest::newRow("the Kelvin sign folds to k") << u"k"_s << u"\u212A"_s << true;
        QTest::newRow("accents are letters of their own") << u"tomas"_s << u"Tomás"_s << false;
        QTest::newRow("an accented query") << u"TOMÁS"_s << u"tomás"_s << true;
    }
    void search()
    {
        QFETCH(QString, query);
        QFETCH(QString, text);
        QTEST(TextSearch(query, u"en_US"_s).foundIn(text), "found");
    }

    void shortText_data()
    {
        QTest::addColumn<qint64>("msecsLeft");
        QTest::addColumn<QString>("expected");
        constexpr qint64 day = 24 * 3600'000LL;
        // Seconds are cut, then minutes rounded up; days are whole days.
        const std::pair<qint64, const char *> rows[] = {
            {-90'000, "now"},           {900, "now"},         {1'000, "in 1m"},        {61'000, "in 2m"},
            {3'540'000, "in 59m"},      {3'541'000, "in 1h"}, {3'660'000, "in 1h 1m"}, {day - 59'000, "in 1d"},
            {2 * day - 60'000, "in 1d"}};
        for (const auto &[msecs, text] : rows)
            QTest::addRow("%lld ms", msecs) << msecs << QString::fromLatin1(text);
    }
    void shortText()
    {
        QFETCH(qint64, msecsLeft);
        QTEST(Countdown::shortText(now.addMSecs(msecsLeft), now), "expected");
    }

    // The next meeting in the menu bar: within the horizon (8 hours here) and until it ends.
    void menuTitle()
    {
        const auto title = [](const QString &name, int startIn, int endIn) {
            Booking next;
            next.name = name;
            next.start = now.addSecs(startIn);
            next.end = now.addSecs(endIn);
            return Countdown::menuTitle(next, now, 28800).value_or(u"none"_s);
        };
        QCOMPARE(title(u"Ann Lee"_s, 28800, 30000), u"Ann in 8h"_s);
        QCOMPARE(title(u"Ann Lee"_s, 28801, 30000), u"none"_s);
        QCOMPARE(title(u"Ann Lee"_s, 0, 600), u"Now: Ann"_s);
        QCOMPARE(title(u"Ann Lee"_s, -1800, 0), u"none"_s);
        QCOMPARE(title(u"  Bo  Ek"_s, 300, 900), u"Bo in 5m"_s);
        QCOMPARE(title(u"   "_s, 300, 900), u"    in 5m"_s);
    }

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
        QTest::newRow("out of order") << u"yt"_s << u"Today"_s << none;
        QTest::newRow("can be negative") << u"z"_s << u"abcdefghijklmnopqrstuvwxyz"_s << -16;
        // One user-perceived character each, however it is spelled.
        QTest::newRow("composed vs decomposed") << u"\u00e9"_s << u"e\u0301t\u00e9"_s << 57;
        QTest::newRow("accent isn't the base letter") << u"e"_s << u"\u00e9"_s << none;
        QTest::newRow("emoji counts once") << u"a"_s << u"\U0001F44D\U0001F3FD a"_s << 57;
        QTest::newRow("CR LF counts once") << u"x"_s << u"a\r\nx"_s << 7;
        QTest::newRow("a palette row") << u"toma"_s << u"Tom\u00e1s \u2014 Intro Call"_s << 132;
        QTest::newRow("dotted capital I") << u"i"_s << u"\u0130x"_s << none;
    }
    void fuzzy()
    {
        QFETCH(QString, query);
        QFETCH(QString, text);
        QTEST(Fuzzy::score(query, text).value_or(std::numeric_limits<int>::min()), "expected");
    }

    void isNewer_data()
    {
        QTest::addColumn<QString>("a");
        QTest::addColumn<QString>("b");
        QTest::addColumn<bool>("newer");
        const std::tuple<const char *, const char *, bool> rows[] = {
            {"2.0", "1.9.9", true},
            {"1.10", "1.9", true},
            {"1.9", "1.10", false},
            {"1.0", "1", false},
            {"1.0.1", "1", true},
            {"2.0", "2.0", false},
            {"1.2rc1", "1.1", false},
            {"1..2", "1.1", true},
            {"1. 5", "1.0", false},
            {"1.\u0665", "1.0", false}, // digits of other scripts are not numbers
            // Too large for 64 bits: 0, not a wrapped-around negative number.
            {"1.0", "1.9223372036854775808", false},
            {"1.9223372036854775807", "1.1", true}};
        for (const auto &[a, b, newer] : rows)
            QTest::addRow("%s than %s", a, b) << QString::fromUtf8(a) << QString::fromUtf8(b) << newer;
    }
    void isNewer()
    {
        QFETCH(QString, a);
        QFETCH(QString, b);
        QTEST(Version::isNewer(a, b), "newer");
    }

    void slug_data()
    {
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("expected");
        QTest::newRow("punctuation collapses") << u"Coffee & Chat!!"_s << u"coffee-chat"_s;
        QTest::newRow("only punctuation") << u"?! & --"_s << u"meeting"_s;
        QTest::newRow("trimmed both ends") << u"--30 min_Sync--"_s << u"30-min-sync"_s;
        QTest::newRow("accents and scripts kept") << u"Café Встреча 東京"_s << u"café-встреча-東京"_s;
        QTest::newRow("combining accent stays") << u"Cafe\u0301 1"_s << u"caf\u00e9-1"_s;
        // q with a dot above has no composed form: two code units, one character.
        QTest::newRow("cut counts characters") << u"q\u0307"_s.repeated(45) << u"q\u0307"_s.repeated(40);
        QTest::newRow("cut may leave a hyphen") << QString(39, u'x') + u" yz"_s << QString(39, u'x') + u"-"_s;
    }
    void slug()
    {
        QFETCH(QString, title);
        QTEST(Slug::make(title), "expected");
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
