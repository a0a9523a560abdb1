// The tray icon in a real tray host (trayer on an Xvfb of its own): it appears, its tooltip
// counts down, and a click opens the popover beside it.
#include "FixtureApp.h"
#include "support/XServer.h"
#include "tray/TrayController.h"
#include "tray/TrayIcon.h"
#include "ui/components/ItemLookup.h"

#include <QApplication>
#include <QProcess>
#include <QQuickStyle>
#include <QRegularExpression>
#include <QStandardPaths>

#include "QuorvaneQmlModules.h"

using namespace quorvane;
using namespace quorvane::test;
using namespace Qt::StringLiterals;

namespace {

// The X server with trayer on its top edge; made before the application, which connects to it.
struct TrayDesk {
    TrayDesk() { missing = start(); }
    // Empty once the server and the tray host run, else what is missing.
    QString start()
    {
        if (!x.missing().isEmpty())
            return x.missing();
        for (const char *tool : {"trayer", "xwininfo"}) {
            if (QStandardPaths::findExecutable(QString::fromLatin1(tool)).isEmpty())
                return QString::fromLatin1(tool) + u" is not installed (see scripts/debian-packages.txt)"_s;
        }
        tray.setProcessEnvironment(x.environment());
        tray.start(u"trayer"_s, {u"--edge"_s, u"top"_s, u"--align"_s, u"right"_s, u"--widthtype"_s, u"request"_s,
                                 u"--height"_s, u"24"_s, u"--transparent"_s, u"false"_s});
        return tray.waitForStarted() ? QString() : u"trayer did not start"_s;
    }
    ~TrayDesk()
    {
        tray.terminate();
        tray.waitForFinished(3000);
    }
    // Where the server has put this application's window of that size, on the root: the tray
    // host reparents the icon, and only the server knows where it ended up. Lines read like
    //     0x200006 "app": ("app" "app")  22x22+0+0  +1257+1
    [[nodiscard]] QRect placed(const QSize &size) const
    {
        const QRegularExpression line(u"\\(\"%1\" \"%1\"\\)\\s+(\\d+)x(\\d+)\\S*\\s+\\+(-?\\d+)\\+(-?\\d+)"_s.arg(
            QCoreApplication::applicationName()));
        QByteArray tree;
        x.run(u"xwininfo"_s, {u"-root"_s, u"-tree"_s}, &tree);
        for (const QRegularExpressionMatch &m : line.globalMatch(QString::fromUtf8(tree))) {
            const QRect r(m.captured(3).toInt(), m.captured(4).toInt(), m.captured(1).toInt(), m.captured(2).toInt());
            if (r.size() == size)
                return r;
        }
        return {};
    }

    XServer x;
    QProcess tray;
    QString missing;
};

TrayDesk *desk = nullptr;

} // namespace

class TestTray : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        if (!desk->missing.isEmpty())
            QSKIP(qPrintable(u"no X server with a tray host for this test: "_s + desk->missing));
        QQuickStyle::setStyle(u"Fusion"_s);
        FixtureApp::registerQmlSingletons();
    }

    void iconShowsTheCountdownAndOpensThePopover()
    {
        QTRY_VERIFY_WITH_TIMEOUT(QSystemTrayIcon::isSystemTrayAvailable(), 10'000);
        FixtureApp app;
        // 9:05: the first meeting, with Priya Raman, starts in 25 minutes.
        app.clock.set(QDateTime(QDate(2026, 3, 10), QTime(9, 5), QTimeZone("America/New_York")));
        View view;
        TrayController tray(view.engine, app.model());

        QTRY_VERIFY_WITH_TIMEOUT(!tray.icon().geometry().isEmpty(), 10'000);
        // trayer doesn't tell the icon it was embedded, so Qt can't say where it is.
        QRect icon;
        QTRY_VERIFY_WITH_TIMEOUT(!(icon = desk->placed(tray.icon().geometry().size())).isEmpty(), 5'000);
        QCOMPARE(tray.icon().toolTip(), u"Priya in 25m"_s);

        // A real click through the X server, once the host has mapped the icon where it put it.
        QTest::qWait(300);
        const QPoint middle = icon.center();
        desk->x.xdotool({u"mousemove"_s, QString::number(middle.x()), QString::number(middle.y()), u"click"_s, u"1"_s});
        QTRY_VERIFY(tray.popover() && tray.popover()->isVisible());
        const QRect popover = tray.popover()->geometry();
        // Below the icon on this top panel, and reaching across it.
        QVERIFY2(std::abs(popover.top() - (icon.bottom() + 1 + 6)) <= 2,
                 qPrintable(u"popover at %1, icon ends at %2"_s.arg(popover.top()).arg(icon.bottom())));
        QVERIFY(popover.left() <= middle.x() && middle.x() <= popover.right());
    }
};

int main(int argc, char *argv[])
{
    TrayDesk xserver;
    desk = &xserver;
    if (xserver.missing.isEmpty()) {
        qputenv("DISPLAY", xserver.x.display().toLocal8Bit());
        qputenv("QT_QPA_PLATFORM", "xcb");
        // The XEmbed tray of trayer, even where the session offers a D-Bus tray.
        qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent");
    }
    QApplication app(argc, argv);
    TestTray test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_tray.moc"
