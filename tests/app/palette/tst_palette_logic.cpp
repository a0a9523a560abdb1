// The command palette on the fixture app: the list and its order, the query, the keys, and
// what running a row does.
#include "FixtureApp.h"
#include "palette/CommandPalette.h"
#include "palette/CommandPaletteModel.h"

#include <QAbstractItemModelTester>
#include <QTest>

using namespace quorvane;
using namespace quorvane::test;
using namespace Qt::StringLiterals;

namespace {

QStringList titles(const QAbstractItemModel &model)
{
    QStringList out;
    for (int row = 0; row < model.rowCount(); ++row)
        out.append(model.index(row, 0).data(CommandPaletteModel::TitleRole).toString());
    return out;
}

QStringList titles(const QList<PaletteCommand> &commands)
{
    QStringList out;
    for (const PaletteCommand &c : commands)
        out.append(c.title);
    return out;
}

// The fixture's server data changed and the model refreshed.
void edit(FixtureApp &app, const std::function<void(Snapshot &)> &change)
{
    change(app.transport().data);
    QCoro::waitFor(app.model().refresh());
}

} // namespace

class TestPaletteLogic : public QObject
{
    Q_OBJECT

    std::unique_ptr<FixtureApp> app;
    std::unique_ptr<CommandPaletteModel> palette;

private Q_SLOTS:
    void init()
    {
        app = std::make_unique<FixtureApp>();
        QCoro::waitFor(app->model().refresh());
        palette = std::make_unique<CommandPaletteModel>();
        palette->setProperty("app", QVariant::fromValue(&app->model()));
        palette->setProperty("commands", QVariant::fromValue(&app->commands()));
        new QAbstractItemModelTester(palette.get(), QAbstractItemModelTester::FailureReportingMode::QtTest,
                                     palette.get());
        app->model().setShowPalette(true);
        palette->open();
    }

    void emptyQuery()
    {
        QCOMPARE(titles(*palette),
                 (QStringList{u"Go to Today"_s, u"Go to Bookings"_s, u"Go to Event Types"_s, u"Go to Availability"_s,
                              u"Go to Polls"_s, u"Go to Insights"_s, u"Quick Share times"_s, u"New poll"_s,
                              u"Refresh"_s, u"Open web dashboard"_s, u"Open my booking page"_s, u"Settings"_s}));
        const auto subtitle = [this](int row) { return palette->index(row).data(CommandPaletteModel::SubtitleRole); };
        QCOMPARE(subtitle(0).toString(), u"Ctrl+1"_s);
        QCOMPARE(subtitle(6).toString(), u"Ctrl+Alt+Super+S"_s);
        QCOMPARE(subtitle(7).toString(), u"Ctrl+Shift+N"_s);
        QCOMPARE(subtitle(10).toString(), app->model().pageLink());
    }

    // What follows the fixed rows: the next meeting with a link, a link per active type, and
    // the bookings, whose type may be gone.
    void list()
    {
        edit(*app, [](Snapshot &s) {
            s.upcoming.first().meet = u"https://meet.example.com/abc"_s;
            s.upcoming.last().type = u"gone"_s;
        });
        const QStringList all = titles(CommandPalette::commands(app->model(), app->commands(), app->model().now()));
        const QString next = app->model().next()->name;
        QVERIFY2(all.at(12).startsWith(u"Join next meeting"_s), qPrintable(all.at(12)));
        QCOMPARE(all.filter(u"Copy link: "_s),
                 (QStringList{u"Copy link: Intro Call"_s, u"Copy link: Consultation"_s, u"Copy link: Deep Dive"_s}));
        QCOMPARE(all.size(), 12 + 1 + 3 + std::min<qsizetype>(app->model().allBookings().size(), 200));
        QVERIFY(all.contains(app->transport().data.upcoming.last().name + u" — Meeting"_s));

        edit(*app, [](Snapshot &s) {
            for (Booking &b : s.upcoming)
                b.meet.reset();
        });
        QVERIFY(titles(CommandPalette::commands(app->model(), app->commands(), app->model().now()))
                    .filter(u"Join next meeting"_s)
                    .isEmpty());
    }

    void keys()
    {
        // "o" is in nearly every title: twelve rows, Down stops at the last.
        palette->setQuery(u"o"_s);
        QCOMPARE(palette->count(), 12);
        for (int i = 0; i < 20; ++i)
            palette->down();
        QCOMPARE(palette->current(), 11);
        palette->up();
        QCOMPARE(palette->current(), 10);
        palette->setQuery(u"or"_s);
        QCOMPARE(palette->current(), 0);
        palette->up();
        QCOMPARE(palette->current(), 0);

        palette->setQuery(u"zzzqx"_s);
        QCOMPARE(palette->count(), 0);
        palette->down();
        QCOMPARE(palette->current(), 0);
        palette->run(palette->current());
        QVERIFY(app->model().showPalette());
        QCOMPARE(palette->query(), u"zzzqx"_s);
    }

    // Ranked by score, ties in the list's order.
    void ranking()
    {
        QList<PaletteCommand> list{{u"Refresh"_s, {}, {}, {}},
                                   {u"Go to Today"_s, {}, {}, {}},
                                   {u"Go to Polls"_s, {}, {}, {}}};
        QCOMPARE(CommandPalette::results(list, u"go"_s), (QList<int>{1, 2}));
        QCOMPARE(CommandPalette::results(list, u"tdy"_s), (QList<int>{1}));
        QCOMPARE(CommandPalette::results(list, u" "_s), (QList<int>{0, 1, 2}));
    }

    void guestSelectsBooking()
    {
        // A guest of one booking, so the name finds just that one.
        edit(*app, [](Snapshot &s) { s.upcoming[2].name = u"Zelda Quint"_s; });
        palette->open();
        const Booking booking = *app->model().booking(app->transport().data.upcoming[2].id);
        palette->setQuery(booking.name);
        QVERIFY(palette->count() > 0);
        QVERIFY(titles(*palette).first().startsWith(booking.name));
        palette->run(palette->current());
        QCOMPARE(app->model().section(), AppSection::bookings);
        QCOMPARE(app->model().selectedBooking(), std::optional<QString>(booking.id));
        QVERIFY(!app->model().showPalette());
        QVERIFY(palette->query().isEmpty());
    }

    void closeEmpties()
    {
        palette->setQuery(u"go"_s);
        palette->close();
        QVERIFY(!app->model().showPalette());
        QVERIFY(palette->query().isEmpty());
        QCOMPARE(palette->count(), 12);
    }
};

QTEST_MAIN(TestPaletteLogic)
#include "tst_palette_logic.moc"
