// Every list model of the app under QAbstractItemModelTester, over the fixture's data and
// across refreshes that change their rows.
#include "FixtureApp.h"
#include "bookings/BookingListModel.h"
#include "components/TypeLinksModel.h"
#include "main/SectionListModel.h"
#include "today/TimelineModel.h"

#include <QAbstractItemModelTester>
#include <QCoroTask>
#include <QItemSelectionModel>
#include <QSignalSpy>
#include <QTest>

#include <algorithm>
#include <functional>
#include <memory>

using namespace Qt::StringLiterals;
using namespace quorvane;
using test::FixtureApp;

using Make = std::function<std::unique_ptr<AppListModel>()>;
using Edit = std::function<void(Snapshot &)>;
Q_DECLARE_METATYPE(Make)
Q_DECLARE_METATYPE(Edit)

namespace {

template <typename Model>
Make make()
{
    return [] { return std::make_unique<Model>(); };
}

Booking &booking(Snapshot &data, const QString &id)
{
    const auto found = std::find_if(data.upcoming.begin(), data.upcoming.end(), [&](auto &b) { return b.id == id; });
    Q_ASSERT(found != data.upcoming.end());
    return *found;
}

} // namespace

class TestListModels : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // `restyle` keeps the number of rows and changes what `row` shows in `role`; `reshape`
    // changes the number of rows, or is empty for a list of fixed length.
    void followsRefreshes_data()
    {
        QTest::addColumn<Make>("make");
        QTest::addColumn<int>("rows");
        QTest::addColumn<Edit>("restyle");
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("role");
        QTest::addColumn<QVariant>("shown");
        QTest::addColumn<Edit>("reshape");
        QTest::addColumn<int>("reshapedRows");

        const Edit renamePriya = [](Snapshot &s) { booking(s, u"bk-001"_s).name = u"Priya R."_s; };
        const Edit dropTomas = [](Snapshot &s) { s.upcoming.removeIf([](auto &b) { return b.id == u"bk-002"_s; }); };
        const Edit cancelTomas = [](Snapshot &s) { booking(s, u"bk-002"_s).status = BookingStatus::cancelled; };
        const Edit renameIntro = [](Snapshot &s) { s.settings->eventTypes[0].title = u"Intro Chat"_s; };
        const Edit consultationOff = [](Snapshot &s) { s.settings->eventTypes[1].isActive = false; };
        // Today has four meetings, Tomás's at 11:00 the second.
        QTest::newRow("timeline") << make<TimelineModel>() << 4 << renamePriya << 0 << int(TimelineModel::NameRole)
                                  << QVariant(u"Priya R."_s) << dropTomas << 3;
        QTest::newRow("sections") << make<SectionListModel>() << 6 << cancelTomas << 0
                                  << int(SectionListModel::BadgeRole) << QVariant(3) << Edit() << 6;
        // Eight bookings to come (a ninth is cancelled); cancelling Tomás's leaves seven.
        QTest::newRow("bookings") << make<BookingListModel>() << 8 << renamePriya << 0
                                  << int(BookingListModel::NameRole) << QVariant(u"Priya R."_s) << cancelTomas << 7;
        // Three of the four types are active.
        QTest::newRow("type links") << make<TypeLinksModel>() << 3 << renameIntro << 0
                                    << int(TypeLinksModel::ShortAccessibleNameRole)
                                    << QVariant(u"Copy Intro Chat link"_s) << consultationOff << 2;
    }
    void followsRefreshes()
    {
        QFETCH(Make, make);
        QFETCH(int, rows);
        QFETCH(Edit, restyle);
        QFETCH(int, row);
        QFETCH(int, role);
        QFETCH(Edit, reshape);
        QFETCH(int, reshapedRows);

        FixtureApp app;
        const Snapshot original = app.transport().data;
        const auto refreshed = [&app](const Snapshot &data) {
            app.transport().data = data;
            QCoro::waitFor(app.model().refresh());
            return !app.model().banner().has_value();
        };
        const std::unique_ptr<AppListModel> model = make();
        QAbstractItemModelTester tester(model.get(), QAbstractItemModelTester::FailureReportingMode::QtTest);
        QSignalSpy counted(model.get(), &AppListModel::countChanged);
        model->setApp(&app.model());
        QCOMPARE(model->rowCount(), rows);
        QCOMPARE(model->count(), rows);

        // What the user meets: a refresh that keeps the length keeps the rows, and the
        // selection with them; only what they show changes.
        QItemSelectionModel selection(model.get());
        selection.select(model->index(1), QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
        QSignalSpy reset(model.get(), &QAbstractItemModel::modelReset);
        QSignalSpy inserted(model.get(), &QAbstractItemModel::rowsInserted);
        QSignalSpy removed(model.get(), &QAbstractItemModel::rowsRemoved);
        QSignalSpy changed(model.get(), &QAbstractItemModel::dataChanged);
        counted.clear();
        Snapshot restyled = original;
        restyle(restyled);
        QVERIFY(refreshed(restyled));
        QVERIFY(reset.isEmpty() && inserted.isEmpty() && removed.isEmpty() && counted.isEmpty());
        QVERIFY(!changed.isEmpty());
        QTEST(model->data(model->index(row), role), "shown");
        QVERIFY(selection.isRowSelected(1));

        // Fewer rows and back, then no model and back: the tester checks each step.
        if (reshape) {
            Snapshot reshaped = original;
            reshape(reshaped);
            QVERIFY(refreshed(reshaped));
            QCOMPARE(model->rowCount(), reshapedRows);
            QCOMPARE(model->count(), reshapedRows);
            QCOMPARE(counted.size(), 1);
            QVERIFY(refreshed(original));
            QCOMPARE(model->rowCount(), rows);
            QCOMPARE(counted.size(), 2);
        }
        model->setApp(nullptr);
        model->setApp(&app.model());
        QCOMPARE(model->rowCount(), rows);
    }

    // Each letter typed narrows the list without touching the rows that stay: they keep their
    // delegates, and a selection or a persistent index on them holds.
    void searchKeepsRows()
    {
        FixtureApp app;
        BookingListModel model;
        QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        model.setApp(&app.model());
        const QPersistentModelIndex jonas = model.index(model.indexOf(u"bk-006"_s));
        QVERIFY(jonas.isValid());
        QSignalSpy inserted(&model, &QAbstractItemModel::rowsInserted);
        QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
        model.setQuery(u"o"_s);
        model.setQuery(u"on"_s); // Jonas Becker, Tomás Ferreira, Hannah Okafor (Consultation), …
        model.setQuery(u"jon"_s);
        QCOMPARE(model.rowCount(), 1);
        QVERIFY(jonas.isValid());
        QCOMPARE(jonas.data(BookingListModel::IdRole).toString(), u"bk-006"_s);
        QVERIFY(inserted.isEmpty());
        // Only the first row of a day changes, when it gets the day's heading.
        for (const QList<QVariant> &signal : changed)
            QCOMPARE(signal.at(0).toModelIndex().row(), 0);
        // Back to no query: the others return around the kept row.
        model.setQuery({});
        QCOMPARE(model.rowCount(), 8);
        QCOMPARE(jonas.data(BookingListModel::IdRole).toString(), u"bk-006"_s);
    }

    // About's links are fixed at start; the tester checks them once.
    void staticLinks()
    {
        FixtureApp app;
        for (QAbstractItemModel *links : {app.setup().about()->links(), app.setup().about()->authorLinks()}) {
            QAbstractItemModelTester tester(links, QAbstractItemModelTester::FailureReportingMode::QtTest);
            QVERIFY(links->rowCount() > 0);
        }
    }
};

QTEST_MAIN(TestListModels)
#include "tst_list_models.moc"
