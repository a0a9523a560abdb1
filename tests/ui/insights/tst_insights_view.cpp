// The insights screen on the fixture app: its four parts from the fixture's bookings, a type
// that was deleted shown as "Meeting" in grey, and the panel when there are no bookings.
#include "FixtureApp.h"
#include "components/Tint.h"
#include "insights/InsightsFigures.h"
#include "ui/components/ItemLookup.h"

#include <QCoroTask>
#include <QQuickStyle>

#include "QuorvaneQmlModules.h"

using namespace Qt::StringLiterals;
using namespace quorvane;
using namespace quorvane::test;

namespace {

const QByteArray insightsWindow =
    "import QtQuick\nimport Quorvane.Insights\n"
    "Window { width: 1000; height: 900; visible: true; InsightsView { anchors.fill: parent } }";

} // namespace

class TestInsightsView : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QQuickStyle::setStyle(u"Fusion"_s);
        FixtureApp::registerQmlSingletons();
    }

    void drawsItsParts()
    {
        FixtureApp app;
        app.transport().data.settings->eventTypes.removeAt(0); // Intro Call is gone
        QCoro::waitFor(app.model().refresh());
        View view(insightsWindow);
        QVERIFY_READY(view);
        for (const char *part : {"insightsTiles", "weeksCard", "popularCard", "typesCard"})
            QVERIFY2(view.shows(QString::fromLatin1(part)), part);
        QVERIFY(!view.shows(u"insightsEmpty"_s));

        const Insights figures = app.model().insights();
        QCOMPARE(view.all(u"heatCell"_s).size(), figures.heatmap.size());
        QCOMPARE(view.all(u"weekBar"_s).size(), figures.weeks.size());
        QCOMPARE(view.item(u"cancelRateTile"_s)->property("value").toString(),
                 InsightsFigures::rate(figures.cancelRate(), u"en_US"_s));

        // The deleted type's bookings count as "Meeting", in the unknown type's grey.
        QObject *model = view.window->findChild<QObject *>(u"insightsFigures"_s);
        QVERIFY(model);
        auto *types = model->property("types").value<QAbstractItemModel *>();
        QVERIFY(types);
        bool meeting = false;
        for (int row = 0; row < types->rowCount(); ++row) {
            const QModelIndex at = types->index(row, 0);
            if (at.data(Qt::UserRole + 1).toString() == u"Meeting"_s) {
                meeting = true;
                QCOMPARE(at.data(Qt::UserRole + 2).value<QColor>(), Tints::color(Tints::unknownType));
            }
        }
        QVERIFY(meeting);
        QVERIFY(view.warnings.isEmpty());
    }

    void noData()
    {
        FixtureApp::Options options;
        options.emptyData = true;
        FixtureApp app(options);
        View view(insightsWindow);
        QVERIFY_READY(view);
        QTRY_VERIFY(view.shows(u"insightsEmpty"_s));
        QVERIFY(!view.shows(u"weeksCard"_s));
    }
};

QTEST_MAIN(TestInsightsView)
#include "tst_insights_view.moc"
