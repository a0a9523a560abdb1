// The bookings screen in the main window on the fixture app, used with the keyboard and the
// mouse: walking the list, each kind of booking's context menu, the search field, and the
// selection across a refresh.
#include "FixtureApp.h"
#include "ui/components/ItemLookup.h"

#include <QCoroTask>
#include <QQuickStyle>

#include "QuorvaneQmlModules.h"

using namespace Qt::StringLiterals;
using namespace quorvane;
using namespace quorvane::test;

namespace {

// The main window on the bookings section, its list focused.
struct Rig : FixtureApp, View {
    Rig()
        : View({}, QUrl(u"qrc:/qt/qml/Quorvane/Main/MainWindow.qml"_s))
    {}
    bool open()
    {
        if (!ready())
            return false;
        model().setSection(AppSection::bookings);
        QTest::qWait(50);
        list = item(u"bookingList"_s);
        if (list)
            QMetaObject::invokeMethod(list, "forceActiveFocus");
        return list && list->hasActiveFocus();
    }
    [[nodiscard]] QString selected() { return model().selectedBooking().value_or(QString()); }
    [[nodiscard]] QObject *bookings() const { return list->property("bookings").value<QObject *>(); }
    // The entries of the context menu that show.
    [[nodiscard]] QStringList menuEntries() const
    {
        QStringList out;
        for (const char *name :
             {"joinEntry", "copyEmailEntry", "emailEntry", "rescheduleEntry", "cancelEntry", "noShowEntry"}) {
            if (shows(QString::fromLatin1(name)))
                out << text(QString::fromLatin1(name));
        }
        return out;
    }
    void type(const QString &text) const
    {
        for (const QChar c : text)
            QTest::keyClick(window, c.toLatin1());
    }
    QQuickItem *list = nullptr;
};

} // namespace

class TestBookingsView : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QQuickStyle::setStyle(u"Fusion"_s);
        FixtureApp::registerQmlSingletons();
    }

    // Down and Up walk the list and select; Return joins a booking with a link.
    void keyboardWalk()
    {
        Rig rig;
        QVERIFY2(rig.open(), qPrintable(rig.warnings.join(u'\n')));
        rig.key(Qt::Key_Down);
        QCOMPARE(rig.selected(), u"bk-001"_s);
        rig.key(Qt::Key_Down);
        rig.key(Qt::Key_Down);
        QCOMPARE(rig.selected(), u"bk-003"_s);
        QVERIFY(rig.shows(u"bookingDetail"_s));
        QCOMPARE(rig.item(u"detailName"_s)->property("text").toString(), u"Hannah Okafor"_s);
        rig.key(Qt::Key_Up);
        QCOMPARE(rig.selected(), u"bk-002"_s);
        rig.key(Qt::Key_Return);
        QCOMPARE(rig.opened, QList<QUrl>{QUrl(u"https://meet.google.com/qvn-0002-ilse"_s)});
        rig.key(Qt::Key_End);
        QCOMPARE(rig.selected(), u"bk-009"_s);
        QVERIFY(rig.warnings.isEmpty());
    }

    // The menu key opens the selected booking's actions: what each kind of booking offers.
    void contextMenu_data()
    {
        QTest::addColumn<int>("filter");
        QTest::addColumn<QString>("id");
        QTest::addColumn<QStringList>("entries");
        QTest::newRow("to come") << 0 << u"bk-002"_s
                                 << QStringList{u"Join Google Meet"_s, u"Copy Email"_s, u"Email Tomás"_s,
                                                u"Copy Reschedule Message"_s, u"Cancel Booking…"_s};
        QTest::newRow("cancelled") << 3 << u"bk-008"_s << QStringList{u"Copy Email"_s, u"Email Sofia"_s};
        QTest::newRow("past, a no-show") << 1 << u"bk-026"_s
                                         << QStringList{u"Join Google Meet"_s, u"Copy Email"_s, u"Email Sofia"_s,
                                                        u"Clear No-show"_s};
        QTest::newRow("past") << 1 << u"bk-021"_s
                              << QStringList{u"Join Google Meet"_s, u"Copy Email"_s, u"Email Hannah"_s,
                                             u"Mark as No-show"_s};
    }
    void contextMenu()
    {
        QFETCH(int, filter);
        QFETCH(QString, id);
        Rig rig;
        QVERIFY(rig.open());
        rig.bookings()->setProperty("filter", filter);
        rig.model().setSelectedBooking(id);
        rig.key(Qt::Key_Menu);
        QObject *menu = rig.list->findChild<QObject *>(u"bookingActions"_s);
        QVERIFY(menu);
        QTRY_VERIFY(menu->property("opened").toBool());
        QTEST(rig.menuEntries(), "entries");
        // Copy Email copies without a word.
        QTest::qWait(300);
        rig.click(u"copyEmailEntry"_s);
        QTRY_COMPARE(rig.clipboard.texts.size(), 1);
        QVERIFY(rig.clipboard.texts.first().endsWith(rig.model().booking(id)->email));
        QVERIFY(!rig.model().banner());
    }

    // A refresh that brings a new booking above the selected one keeps the selection, and
    // the delegates of the rows that stay.
    void selectionSurvivesRefresh()
    {
        Rig rig;
        QVERIFY(rig.open());
        rig.model().setSelectedBooking(u"bk-005"_s);
        QTest::qWait(20);
        QQuickItem *before = rig.list->property("currentItem").value<QQuickItem *>();
        QVERIFY(before);
        Booking early = rig.transport().data.upcoming.at(1); // Tomás at 11:00
        early.id = u"bk-100"_s;
        early.start = early.start.addSecs(-1800);
        early.end = early.start.addSecs(1800);
        rig.transport().data.upcoming.prepend(early);
        QCoro::waitFor(rig.model().refresh());
        QCOMPARE(rig.selected(), u"bk-005"_s);
        QTRY_COMPARE(rig.list->property("currentIndex").toInt(), 5);
        QCOMPARE(rig.list->property("currentItem").value<QQuickItem *>(), before);
    }

    // The toolbar's search field is there for this screen only; Ctrl+F reaches it, typing
    // narrows the list, Escape clears it.
    void search()
    {
        Rig rig;
        QVERIFY(rig.open());
        QVERIFY(rig.shows(u"searchField"_s));
        rig.key(Qt::Key_F, Qt::ControlModifier);
        QTRY_VERIFY(rig.item(u"searchField"_s)->hasActiveFocus());
        rig.type(u"ferreira.pt"_s);
        QCOMPARE(rig.bookings()->property("count").toInt(), 1);
        rig.type(u"x"_s);
        QVERIFY(rig.shows(u"bookingsEmpty"_s));
        QCOMPARE(rig.item(u"bookingsEmpty"_s)->property("title").toString(),
                 u"No results for \u201Cferreira.ptx\u201D"_s);
        rig.key(Qt::Key_Escape);
        QCOMPARE(rig.bookings()->property("count").toInt(), 8);
        rig.model().setSection(AppSection::today);
        QTRY_VERIFY(!rig.shows(u"searchField"_s));
    }

    // Ctrl+Delete asks before cancelling: Escape leaves the booking alone, and Tab to
    // "Cancel Booking" then Return cancels it.
    void cancelAsks()
    {
        Rig rig;
        QVERIFY(rig.open());
        rig.model().setSelectedBooking(u"bk-003"_s);
        rig.key(Qt::Key_Delete, Qt::ControlModifier);
        QTRY_VERIFY(rig.shows(u"confirmAction"_s));
        rig.key(Qt::Key_Escape);
        QTRY_VERIFY(!rig.shows(u"confirmAction"_s));
        QTest::qWait(50);
        QVERIFY(!rig.transport().requested.contains(u"POST sync/cancel"_s));

        rig.key(Qt::Key_Delete, Qt::ControlModifier);
        QTRY_VERIFY(rig.shows(u"confirmAction"_s));
        rig.key(Qt::Key_Tab);
        QTRY_VERIFY(rig.item(u"confirmAction"_s)->hasActiveFocus());
        rig.key(Qt::Key_Return);
        QTRY_VERIFY(rig.transport().requested.contains(u"POST sync/cancel"_s));
        QTRY_VERIFY(!rig.shows(u"confirmAction"_s));
    }
};

QTEST_MAIN(TestBookingsView)
#include "tst_bookings_view.moc"
