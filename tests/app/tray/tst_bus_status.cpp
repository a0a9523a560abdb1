// The status a status bar reads from the bus, on a model against the sandbox: what it shows of
// the next meeting, and that each announcement carries only what changed, when it changed.
#include "ModelRig.h"

#include "ISO.h"
#include "shell/Activation.h"
#include "tray/BusStatus.h"

#include <QCoroTask>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace quorvane;
using namespace quorvane::test;

namespace {
// What a status bar has heard, and the status it adds up to.
class Heard : public QObject
{
    Q_OBJECT

public:
    QList<QVariantMap> changes;
    QVariantMap state;

public Q_SLOTS:
    void changed(const QString &interface, const QVariantMap &values, const QStringList &)
    {
        if (interface != QLatin1StringView(DBusApplication::statusInterface))
            return;
        changes.append(values);
        state.insert(values);
    }
};
} // namespace

class TestBusStatus : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void followsTheModel()
    {
        ModelRig rig;
        QString why;
        QVERIFY2(rig.ready(&why), qPrintable(why));
        // Ann's is the only meeting ahead, in 25 minutes.
        sandbox::Backend &backend = rig.server.sandbox().backend();
        for (const Booking &b : backend.upcoming())
            backend.cancel(b.id);
        rig.guestBooks(u"Ann Lee"_s, rig.clock.now().addSecs(25 * 60));

        std::unique_ptr<AppModel> model = rig.makeModel();
        DBusApplication app(rig.bus.connect(u"quorvane"_s), Activation::names());
        QVERIFY(app.claim());
        Heard bar;
        QVERIFY(rig.bus.connect(u"bar"_s).connect(DBusApplication::serviceName(),
                                                  QString::fromLatin1(DBusApplication::path),
                                                  u"org.freedesktop.DBus.Properties"_s, u"PropertiesChanged"_s, &bar,
                                                  SLOT(changed(QString, QVariantMap, QStringList))));
        BusStatus::follow(*model, app);
        QCoro::waitFor(model->refresh());
        QTRY_COMPARE(bar.state.value(u"NextGuest"_s), QVariant(u"Ann Lee"_s));
        QCOMPARE(bar.state.value(u"NextTitle"_s), QVariant(backend.settings().eventTypes.first().title));
        QCOMPARE(bar.state.value(u"NextStart"_s), QVariant(u"2026-03-10T14:05:00Z"_s));
        QCOMPARE(bar.state.value(u"Countdown"_s), QVariant(u"in 25m"_s));
        QCOMPARE(bar.state.value(u"SavedAt"_s), QVariant(u"2026-03-10T13:40:00Z"_s));
        QCOMPARE(bar.state.value(u"SignedIn"_s), QVariant(true));

        // A tick within the same minute's countdown announces nothing; the next one only the
        // countdown (had the first announced anything, it would come first).
        const qsizetype seen = bar.changes.size();
        rig.advance(1);
        QCoro::waitFor(model->tick());
        rig.advance(59);
        QCoro::waitFor(model->tick());
        QTRY_VERIFY(bar.changes.size() > seen);
        QCOMPARE(bar.changes.at(seen), (QVariantMap{{u"Countdown"_s, u"in 24m"_s}}));

        // A guest books a later day: the next meeting stays, the counts tell the news.
        QCOMPARE(bar.state.value(u"UpcomingCount"_s), QVariant(1));
        const qsizetype before = bar.changes.size();
        rig.guestBooks(u"Ben Roe"_s, rig.clock.now().addDays(2).addSecs(2 * 3600));
        QCoro::waitFor(model->refresh());
        QTRY_COMPARE(bar.state.value(u"UpcomingCount"_s), QVariant(2));
        QCOMPARE(bar.state.value(u"TodayCount"_s), QVariant(1));
        for (const QVariantMap &change : bar.changes.mid(before))
            QVERIFY(!change.contains(u"NextId"_s));

        // Signed out, nothing is left to show.
        model->signOut();
        QTRY_COMPARE(bar.state.value(u"SignedIn"_s), QVariant(false));
        for (const QString &key : {u"NextId"_s, u"NextGuest"_s, u"NextStart"_s, u"Countdown"_s, u"SavedAt"_s})
            QCOMPARE(bar.state.value(key), QVariant(QString()));
    }
};

QTEST_GUILESS_MAIN(TestBusStatus)
#include "tst_bus_status.moc"
