// The bookings screen against the sandbox on loopback: a cancel through the confirmation, a
// no-show marked and cleared, and a cancel the server fails.
#include "ui/components/SandboxScreen.h"

#include <QQuickStyle>

#include "QuorvaneQmlModules.h"

using namespace quorvane;
using namespace quorvane::test;
using namespace Qt::StringLiterals;

namespace {

// The screen alone in a window, on a model signed in to the sandbox, with every banner kept.
struct Rig : SandboxScreen {
    bool start()
    {
        return SandboxScreen::start("Quorvane.Bookings", "BookingsView", {1000, 700}, [this](AppModel &m) {
            QObject::connect(&m, &AppModel::bannerChanged, &m, [this, &m] {
                if (m.banner())
                    banners << m.banner()->message;
            });
        });
    }
    // A guest books, and the model learns of it; the booking is selected.
    Booking booked(const QString &name, qint64 fromNowSeconds)
    {
        const Booking b = models.guestBooks(name, models.clock.now().addSecs(fromNowSeconds));
        QCoro::waitFor(model->refresh());
        model->setSelectedBooking(b.id);
        return b;
    }
    [[nodiscard]] BookingStatus status(const Booking &b) const { return model->booking(b.id).value().status; }
    // What the server holds.
    [[nodiscard]] BookingStatus serverStatus(const Booking &b)
    {
        for (const Booking &held : models.server.sandbox().backend().changes(distantPast()))
            if (held.id == b.id)
                return held.status;
        return BookingStatus::unknown;
    }

    QStringList banners;
};

} // namespace

class TestBookingsSandbox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QQuickStyle::setStyle(u"Fusion"_s);
        registerAppForQml();
    }

    // Cancel asks first; once confirmed, the refresh after it moves the booking under
    // "Cancelled", and the toast says the guest was told.
    void cancelFromDetail()
    {
        Rig rig;
        QVERIFY2(rig.start(), qPrintable(rig.why));
        const Booking b = rig.booked(u"Ann Lee"_s, 86400);
        View &view = *rig.view;
        QTRY_VERIFY(view.shows(u"cancelButton"_s));
        view.click(u"cancelButton"_s);
        QTRY_VERIFY(view.shows(u"confirmAction"_s));
        QCOMPARE(rig.status(b), BookingStatus::confirmed); // nothing yet
        view.click(u"confirmAction"_s);
        QTRY_COMPARE(rig.status(b), BookingStatus::cancelled);
        QTRY_VERIFY(rig.banners.contains(u"Booking cancelled. Ann Lee was notified."_s));
        QVERIFY(!view.shows(u"cancelButton"_s));

        QObject *list = view.engine.rootObjects().first()->findChild<QObject *>(u"bookingsModel"_s);
        QVERIFY(list);
        int row = 0;
        QMetaObject::invokeMethod(list, "indexOf", Q_RETURN_ARG(int, row), Q_ARG(QString, b.id));
        QCOMPARE(row, -1); // gone from "Upcoming"
        list->setProperty("filter", 2);
        QMetaObject::invokeMethod(list, "indexOf", Q_RETURN_ARG(int, row), Q_ARG(QString, b.id));
        QVERIFY(row >= 0);
        QCOMPARE(rig.serverStatus(b), BookingStatus::cancelled);
    }

    // The switch of an ended booking marks it a no-show on the server, and clears it again.
    void noShow()
    {
        Rig rig;
        QVERIFY2(rig.start(), qPrintable(rig.why));
        const Booking b = rig.booked(u"Ben Carter"_s, 3600);
        rig.models.advance(3 * 3600);
        QCoro::waitFor(rig.model->refresh());
        View &view = *rig.view;
        QTRY_VERIFY(view.shows(u"noShowSwitch"_s));
        QVERIFY(!view.item(u"noShowSwitch"_s)->property("checked").toBool());
        view.click(u"noShowSwitch"_s);
        QTRY_COMPARE(rig.model->booking(b.id)->noShow, std::optional(true));
        QTRY_VERIFY(view.item(u"noShowSwitch"_s)->property("checked").toBool());
        QVERIFY(rig.banners.contains(u"Marked as no-show"_s));
        view.click(u"noShowSwitch"_s);
        QTRY_COMPARE(rig.model->booking(b.id)->noShow, std::optional(false));
        QTRY_VERIFY(rig.banners.contains(u"No-show cleared"_s));
        QVERIFY(!view.item(u"noShowSwitch"_s)->property("checked").toBool());
    }

    // A server that fails the cancel: the banner tells, and the booking stays as it was.
    void cancelFails()
    {
        Rig rig;
        QVERIFY2(rig.start(), qPrintable(rig.why));
        const Booking b = rig.booked(u"Ann Lee"_s, 86400);
        sandbox::Fault fault;
        fault.status = 500;
        fault.count = 10; // the client's retries too
        rig.models.server.sandbox().faults().plant(u"sync/cancel"_s, fault);
        View &view = *rig.view;
        QTRY_VERIFY(view.shows(u"cancelButton"_s));
        view.click(u"cancelButton"_s);
        QTRY_VERIFY(view.shows(u"confirmAction"_s));
        view.click(u"confirmAction"_s);
        QTRY_VERIFY_WITH_TIMEOUT(rig.model->banner().has_value(), 10000);
        QCOMPARE(rig.model->banner()->kind, Banner::Kind::error);
        QVERIFY(!rig.banners.join(u' ').contains(u"cancelled"_s));
        QCOMPARE(rig.status(b), BookingStatus::confirmed);
        QCOMPARE(rig.serverStatus(b), BookingStatus::confirmed);
        QVERIFY(view.shows(u"cancelButton"_s));
    }
};

QTEST_MAIN(TestBookingsSandbox)
#include "tst_bookings_sandbox.moc"
