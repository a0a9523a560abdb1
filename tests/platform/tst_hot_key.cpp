// The global hot key, both ways it reaches the app: an X11 grab on an Xvfb of the test's own,
// pressed with xdotool (also with Num Lock on, and with the combination held by another
// client), and the desktop portal's GlobalShortcuts, faked on a private bus.
#include "linux/PortalHotKey.h"
#include "linux/XcbHotKey.h"
#include "support/FakeGlobalShortcuts.h"
#include "support/PrivateBus.h"
#include "support/XServer.h"

#include <QGuiApplication>
#include <QSignalSpy>
#include <QTest>

#include <xcb/xcb.h>

using namespace quorvane;
using namespace quorvane::test;
using namespace Qt::StringLiterals;

namespace {

XServer *xserver = nullptr;

} // namespace

class TestHotKey : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void x11Grab()
    {
        if (!xserver->missing().isEmpty())
            QSKIP(qPrintable(xserver->missing()));
        xcb_connection_t *connection = XcbHotKey::applicationConnection();
        QVERIFY(connection);
        XcbHotKey key(connection);
        QVERIFY(key.isRegistered());
        QSignalSpy pressed(&key, &HotKey::pressed);
        QVERIFY(xserver->press(u"ctrl+alt+super+s"_s));
        QTRY_COMPARE(pressed.size(), 1);
        // Other combinations pass by.
        QVERIFY(xserver->press(u"ctrl+alt+s"_s));
        QVERIFY(xserver->press(u"ctrl+alt+super+d"_s));
        // With Num Lock on it still works.
        QVERIFY(xserver->press(u"Num_Lock"_s));
        QVERIFY(xserver->press(u"ctrl+alt+super+s"_s));
        QTRY_COMPARE(pressed.size(), 2);
        QVERIFY(xserver->press(u"Num_Lock"_s));
    }

    // Another client holds the combination: no registration, no failure.
    void x11Taken()
    {
        if (!xserver->missing().isEmpty())
            QSKIP(qPrintable(xserver->missing()));
        xcb_connection_t *other = xcb_connect(qPrintable(xserver->display()), nullptr);
        {
            XcbHotKey holder(other);
            QVERIFY(holder.isRegistered());
            XcbHotKey key(XcbHotKey::applicationConnection());
            QVERIFY(!key.isRegistered());
        }
        xcb_disconnect(other);
    }

    void portal()
    {
        PrivateBus bus;
        QVERIFY2(bus.isRunning(), qPrintable(bus.error()));
        const QDBusConnection client = bus.connect(u"app"_s);
        QVERIFY(!PortalHotKey::available(client));

        FakeGlobalShortcuts desktop(bus.connect(u"portal"_s));
        QVERIFY(desktop.start());
        QVERIFY(PortalHotKey::available(client));
        PortalHotKey key(client);
        QSignalSpy pressed(&key, &HotKey::pressed);
        key.start();
        QTRY_VERIFY(key.isRegistered());
        QCOMPARE(desktop.calls(), (QStringList{u"CreateSession"_s, u"BindShortcuts"_s}));
        QCOMPARE(desktop.bindings().size(), 1);
        QCOMPARE(desktop.bindings().first().description, u"Share times"_s);

        desktop.activate(u"another"_s, {});
        desktop.activate(QString::fromLatin1(PortalHotKey::shortcutId), u"token-1"_s);
        QTRY_COMPARE(pressed.size(), 1);
        QCOMPARE(pressed.first().first().toString(), u"token-1"_s);
    }
};

int main(int argc, char *argv[])
{
    XServer x;
    xserver = &x;
    if (x.missing().isEmpty()) {
        qputenv("DISPLAY", x.display().toLocal8Bit());
        qputenv("QT_QPA_PLATFORM", "xcb");
    }
    QGuiApplication app(argc, argv);
    TestHotKey test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_hot_key.moc"
