// The polls screen's logic: the link, the vote bars, the voters line, a new poll's type.
#include "polls/NewPollModel.h"
#include "polls/Polls.h"

#include <QTest>

using namespace quorvane;
using namespace Qt::StringLiterals;

Q_DECLARE_METATYPE(quorvane::EventType)

namespace {

Poll poll(const QList<int> &votes)
{
    Poll p;
    p.id = u"p1"_s;
    for (const int v : votes)
        p.options.append({QDateTime::currentDateTimeUtc(), v});
    return p;
}

EventType type(const QString &slug, int minutes)
{
    EventType t;
    t.slug = slug;
    t.minutes = minutes;
    return t;
}

} // namespace

class TestPollsLogic : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Each option's share of its track and whether it is green.
    void bars_data()
    {
        QTest::addColumn<QList<int>>("votes");
        QTest::addColumn<int>("top");
        QTest::addColumn<QList<double>>("shares");
        QTest::addColumn<QList<bool>>("green");
        QTest::newRow("no votes: no share, none green")
            << QList<int>{0, 0} << 0 << QList<double>{0, 0} << QList<bool>{false, false};
        QTest::newRow("a tie for the lead: both full and green")
            << QList<int>{2, 2, 1} << 2 << QList<double>{1, 1, 0.5} << QList<bool>{true, true, false};
        QTest::newRow("one of ten") << QList<int>{10, 1} << 10 << QList<double>{1, 0.1} << QList<bool>{true, false};
        QTest::newRow("no options") << QList<int>{} << 1 << QList<double>{} << QList<bool>{};
    }
    void bars()
    {
        QFETCH(QList<int>, votes);
        QFETCH(int, top);
        QFETCH(QList<double>, shares);
        QFETCH(QList<bool>, green);
        QCOMPARE(Polls::top(poll(votes)), top);
        for (qsizetype i = 0; i < votes.size(); ++i) {
            QCOMPARE(Polls::barShare(votes[i], top), shares[i]);
            QCOMPARE(Polls::leads(votes[i], top), green[i]);
        }
    }

    void texts()
    {
        QCOMPARE(Polls::url(u"https://quorvane.app/"_s, poll({})), u"https://quorvane.app//poll/p1"_s);
        QCOMPARE(Polls::votersLine({}), u"No votes yet"_s);
        QCOMPARE(Polls::votersLine({u"Ann"_s, u"Ben"_s}), u"Voters: Ann, Ben"_s);
    }

    void defaultType_data()
    {
        QTest::addColumn<QList<EventType>>("active");
        QTest::addColumn<QString>("chosen");
        QTest::newRow("none") << QList<EventType>{} << QString();
        QTest::newRow("one") << QList<EventType>{type(u"deep"_s, 60)} << u"deep"_s;
        QTest::newRow("the first of 30 minutes")
            << QList<EventType>{type(u"intro"_s, 15), type(u"consult"_s, 30), type(u"pair"_s, 30)} << u"consult"_s;
    }
    void defaultType()
    {
        QFETCH(QList<EventType>, active);
        QTEST(Polls::defaultType(active), "chosen");
    }

    // A title of one blank is a title; no type, no poll.
    void canCreate()
    {
        NewPollModel sheet;
        sheet.setTitle(u" "_s);
        QVERIFY(!sheet.canCreate());
        sheet.setType(u"consult"_s);
        QVERIFY(sheet.canCreate());
        sheet.setTitle({});
        QVERIFY(!sheet.canCreate());
    }
};

QTEST_APPLESS_MAIN(TestPollsLogic)
#include "tst_polls_logic.moc"
