// Share Times: the days and stars, the picks, the suggestion, the link and the message, and
// the window's state through a fetch on the fixture app.
#include "FixtureApp.h"
#include "core/logic/TimeFixtures.h"
#include "share/QuickShare.h"
#include "share/QuickShareModel.h"

#include <QSignalSpy>
#include <QTest>

using namespace quorvane;
using namespace quorvane::test;
using namespace Qt::StringLiterals;

namespace {

const QString newYork = u"America/New_York"_s;

// "d h:m score": a day of March 2026 in New York, a time and a score. 30 minutes long.
Slot slot(int day, int hour, int minute, int score)
{
    const Instant start = QDateTime(QDate(2026, 3, day), QTime(hour, minute), QTimeZone("America/New_York")).toUTC();
    return {start, start.addSecs(1800), score};
}

QList<int> hours(const QList<Slot> &slots)
{
    QList<int> out;
    for (const Slot &s : slots)
        out.append(s.start.toTimeZone(QTimeZone("America/New_York")).time().hour());
    return out;
}

} // namespace

class TestShareLogic : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Which time of each day has the star.
    void best_data()
    {
        QTest::addColumn<QList<Slot>>("slots");
        QTest::addColumn<QList<int>>("starredHours");
        QTest::newRow("equal top scores: the first in the server's order")
            << QList<Slot>{slot(11, 9, 0, 50), slot(11, 14, 0, 80), slot(11, 10, 0, 80)} << QList<int>{14};
        QTest::newRow("all -1: no star") << QList<Slot>{slot(11, 9, 0, -1), slot(11, 10, 0, -1)} << QList<int>{};
        QTest::newRow("a 0 is a star") << QList<Slot>{slot(11, 9, 0, -1), slot(11, 10, 0, 0)} << QList<int>{10};
        QTest::newRow("one a day") << QList<Slot>{slot(11, 9, 0, 10), slot(12, 11, 0, 5), slot(12, 15, 0, 7)}
                                   << QList<int>{9, 15};
    }
    void best()
    {
        QFETCH(QList<Slot>, slots);
        QFETCH(QList<int>, starredHours);
        QList<Slot> starred;
        const QSet<Instant> ids = QuickShare::bestIDs(slots, newYork);
        for (const Slot &s : slots) {
            if (ids.contains(s.start))
                starred.append(s);
        }
        QCOMPARE(ids.size(), starredHours.size());
        QCOMPARE(hours(starred), starredHours);
    }

    void days()
    {
        // Nine days, given late first, with one day out of order: seven days, each by start.
        QList<Slot> slots;
        for (int d = 20; d >= 12; --d)
            slots << slot(d, 15, 0, 1) << slot(d, 9, 0, 1);
        const QList<QuickShare::Day> days = QuickShare::byDay(slots, newYork);
        QCOMPARE(days.size(), 7);
        QCOMPARE(days.first().date, QDate(2026, 3, 12));
        QCOMPARE(days.last().date, QDate(2026, 3, 18));
        QCOMPARE(hours(days.first().slots), (QList<int>{9, 15}));
        // Days are the shown zone's: 23:30 in New York is the next day in Berlin.
        QCOMPARE(QuickShare::byDay({slot(12, 23, 30, 1)}, u"Europe/Berlin"_s).first().date, QDate(2026, 3, 13));
    }

    void suggest_data()
    {
        QTest::addColumn<QList<Slot>>("slots");
        QTest::addColumn<QList<int>>("pickedHours");
        QTest::newRow("three tops on one day: one of them, then the other days")
            << QList<Slot>{slot(11, 9, 0, 90), slot(11, 10, 0, 90), slot(11, 11, 0, 90), slot(12, 13, 0, 20),
                           slot(13, 14, 0, 30)}
            << QList<int>{9, 14, 13};
        QTest::newRow("all on one day: exactly one")
            << QList<Slot>{slot(11, 9, 0, 1), slot(11, 10, 0, 5)} << QList<int>{10};
        QTest::newRow("negative scores still count") << QList<Slot>{slot(11, 9, 0, -1)} << QList<int>{9};
        QTest::newRow("equal scores keep the server's order")
            << QList<Slot>{slot(14, 16, 0, 5), slot(12, 8, 0, 5), slot(13, 12, 0, 5), slot(11, 7, 0, 5)}
            << QList<int>{16, 8, 12};
    }
    void suggest()
    {
        QFETCH(QList<Slot>, slots);
        QFETCH(QList<int>, pickedHours);
        QCOMPARE(hours(QuickShare::suggestBest(slots, newYork)), pickedHours);
    }

    void toggle()
    {
        QList<Slot> picked;
        const QList<Slot> four{slot(11, 9, 0, 1), slot(11, 10, 0, 1), slot(11, 11, 0, 1), slot(11, 12, 0, 1)};
        for (int i = 0; i < 3; ++i)
            QCOMPARE(QuickShare::toggle(picked, four[i]), QuickShare::Toggle::added);
        QCOMPARE(QuickShare::toggle(picked, four[3]), QuickShare::Toggle::refused);
        QCOMPARE(picked, four.first(3));
        // Equal in start only is another time.
        Slot other = four[1];
        other.score = 9;
        QCOMPARE(QuickShare::toggle(picked, other), QuickShare::Toggle::refused);
        QCOMPARE(QuickShare::toggle(picked, four[1]), QuickShare::Toggle::removed);
        QCOMPARE(picked, (QList<Slot>{four[0], four[2]}));
    }

    void linkAndText()
    {
        QCOMPARE(QuickShare::link(u"https://a/answer"_s, u"https://a/model"_s), u"https://a/answer"_s);
        QCOMPARE(QuickShare::link(std::nullopt, u"https://a/model"_s), u"https://a/model"_s);
        const QString text = QuickShare::text({slot(11, 9, 30, 1)}, std::nullopt, u"https://a/x"_s, newYork, u"en_US"_s,
                                              at("2026-01-06T12:00:00Z"));
        QVERIFY2(text.startsWith(u"Here are a few times that work for a 30-minute meeting (EST):"_s), qPrintable(text));
    }

    void zones()
    {
        const QStringList zones =
            QuickShare::zoneChoices(u"Europe/Berlin"_s, {u"America/New_York"_s, u""_s, u"Europe/Berlin"_s,
                                                         u"Not/AZone"_s, u"Asia/Tokyo"_s, u"America/New_York"_s});
        QCOMPARE(zones.first(3), (QStringList{u"Europe/Berlin"_s, u"America/New_York"_s, u"Asia/Tokyo"_s}));
        QCOMPARE(zones.count(u"Asia/Tokyo"_s), 1);
        QVERIFY(zones.contains(u"Australia/Sydney"_s));
    }

    // The window's state on the fixture app, whose server offers four times a weekday.
    void window()
    {
        FixtureApp app;
        QCoro::waitFor(app.model().refresh());
        QuickShareModel share;
        share.setApp(&app.model());
        share.open();
        // 30 minutes is the default type; the times come once the fetch is done.
        QCOMPARE(share.typeSlug(), u"consult"_s);
        QTRY_VERIFY(!share.loading());
        QVERIFY(share.hasSlots());
        QCOMPARE(share.link(), app.model().link(*app.model().type(u"consult"_s)));
        QCOMPARE(share.days()->rowCount(), 7);

        QSignalSpy refused(&share, &QuickShareModel::refused);
        for (int chip = 0; chip < 4; ++chip)
            share.toggle(0, chip);
        QCOMPARE(share.pickedCount(), 3);
        QCOMPARE(refused.size(), 1);
        QVERIFY(
            share.days()->chipsAt(0)->data(share.days()->chipsAt(0)->index(0), ShareChipsModel::PickedRole).toBool());

        // The suggestion replaces the picks, one a day.
        share.suggestBest();
        QCOMPARE(share.pickedCount(), 3);
        QVERIFY(
            !share.days()->chipsAt(0)->data(share.days()->chipsAt(0)->index(1), ShareChipsModel::PickedRole).toBool());
        QVERIFY(share.copyTimes());
        QCOMPARE(app.clipboard.texts.last(), share.preview());
        QCOMPARE(share.preview().count(u"\u2022 "_s), 3);

        // A new opening forgets the picks.
        share.open();
        QCOMPARE(share.pickedCount(), 0);
        QVERIFY(!share.copyTimes());
    }

    // A change of type gives up on the fetch under way; the latest answer stands.
    void latestFetchStands()
    {
        FixtureApp app;
        QCoro::waitFor(app.model().refresh());
        QuickShareModel share;
        share.setApp(&app.model());
        app.transport().mode = FixtureTransport::Mode::silent;
        share.open();
        QVERIFY(share.loading());
        app.transport().mode = FixtureTransport::Mode::answer;
        share.setTypeSlug(u"deep-dive"_s);
        QTRY_VERIFY(!share.loading());
        QVERIFY(!share.hasError());
        QVERIFY(share.link().endsWith(u"deep-dive"_s));
        QCOMPARE(app.transport().requested.filter(u"sync/slots"_s).size(), 2);

        // A failure stays here, with the link from the model, and never in the main banner.
        app.transport().mode = FixtureTransport::Mode::status;
        share.toggle(0, 0);
        share.load();
        QTRY_VERIFY(share.hasError());
        QCOMPARE(share.pickedCount(), 0);
        QVERIFY(share.hasSlots());
        QVERIFY(!share.link().isEmpty());
        QVERIFY(!app.model().banner().has_value());
    }

    void noActiveTypes()
    {
        FixtureApp app;
        app.transport().data.settings->eventTypes.clear();
        QCoro::waitFor(app.model().refresh());
        QuickShareModel share;
        share.setApp(&app.model());
        share.open();
        QVERIFY(share.typeSlug().isEmpty());
        QVERIFY(!share.loading() && !share.hasSlots() && share.link().isEmpty());
        QVERIFY(share.typeChoices().isEmpty());
        QCOMPARE(app.transport().requested.filter(u"sync/slots"_s).size(), 0);
    }
};

QTEST_MAIN(TestShareLogic)
#include "tst_share_logic.moc"
