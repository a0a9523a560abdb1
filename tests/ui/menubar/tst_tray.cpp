// The tray icon in a real tray: an X server (Xvfb) with trayer as the tray host. The icon
// must appear there with the countdown drawn in, and a click on it must open the popover
// beside it; a second click closes it.
#include "TrayController.h"
#include "TrayIcon.h"
#include "ui/today/FixtureRig.h"

#include <QApplication>
#include <QPainter>
#include <QProcess>
#include <QQmlApplicationEngine>
#include <QQuickStyle>
#include <QRegularExpression>
#include <QScreen>
#include <QStandardPaths>
#include <QStyleHints>
#include <QTest>
#include <QtQml/qqmlextensionplugin.h>

#include "IconProvider.h"

Q_IMPORT_QML_PLUGIN(Quorvane_AppPlugin)
Q_IMPORT_QML_PLUGIN(Quorvane_ComponentsPlugin)
Q_IMPORT_QML_PLUGIN(Quorvane_OnboardingPlugin)
Q_IMPORT_QML_PLUGIN(Quorvane_TodayPlugin)
Q_IMPORT_QML_PLUGIN(Quorvane_MenuBarPlugin)

using namespace quorvane;
using namespace quorvane::test;
using namespace Qt::StringLiterals;

namespace {

// An X server of the test's own with a tray host on its top edge. Made before the
// application, which must connect to it.
class TrayDesk
{
public:
    TrayDesk()
    {
        for (const char *tool : {"Xvfb", "trayer", "xdotool", "xwininfo"}) {
            if (QStandardPaths::findExecutable(QString::fromLatin1(tool)).isEmpty()) {
                m_missing = u"%1 is not installed (see scripts/debian-packages.txt)"_s.arg(QLatin1StringView(tool));
                return;
            }
        }
        // -displayfd 1: the server picks a free display and writes its number when it is ready.
        m_x.start(u"Xvfb"_s, {u"-displayfd"_s, u"1"_s, u"-screen"_s, u"0"_s, u"1280x800x24"_s, u"-nolisten"_s, u"tcp"_s});
        if (!m_x.waitForStarted() || !m_x.waitForReadyRead(10'000)) {
            m_missing = u"Xvfb did not start"_s;
            return;
        }
        display = u":"_s + QString::fromLatin1(m_x.readAllStandardOutput().trimmed());
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert(u"DISPLAY"_s, display);
        m_tray.setProcessEnvironment(env);
        m_tray.start(u"trayer"_s, {u"--edge"_s, u"top"_s, u"--align"_s, u"right"_s, u"--widthtype"_s, u"request"_s,
                                  u"--height"_s, u"24"_s, u"--transparent"_s, u"false"_s});
        if (!m_tray.waitForStarted())
            m_missing = u"trayer did not start"_s;
    }
    ~TrayDesk()
    {
        for (QProcess *p : {&m_tray, &m_x}) {
            p->terminate();
            p->waitForFinished(3000);
        }
    }

    [[nodiscard]] bool ready() const { return m_missing.isEmpty(); }
    [[nodiscard]] const QString &why() const { return m_missing; }

    // A real pointer click, through the X server, as a user's would arrive.
    void click(const QPoint &at) const
    {
        run(u"xdotool"_s, {u"mousemove"_s, QString::number(at.x()), QString::number(at.y()), u"click"_s, u"1"_s});
    }

    // Where the server has put this application's window of that size, on the root: the tray
    // host reparents the icon, and only the server knows where it ended up. Lines read like
    //     0x200006 "app": ("app" "app")  22x22+0+0  +1257+1
    [[nodiscard]] QRect placed(const QSize &size) const
    {
        const QString tree = QString::fromUtf8(run(u"xwininfo"_s, {u"-root"_s, u"-tree"_s}));
        const QRegularExpression line(u"\\(\"%1\" \"%1\"\\)\\s+(\\d+)x(\\d+)\\S*\\s+\\+(-?\\d+)\\+(-?\\d+)"_s
                                          .arg(QCoreApplication::applicationName()));
        for (const QRegularExpressionMatch &m : line.globalMatch(tree)) {
            const QRect r(m.captured(3).toInt(), m.captured(4).toInt(), m.captured(1).toInt(), m.captured(2).toInt());
            if (r.size() == size)
                return r;
        }
        return {};
    }

    QString display;

private:
    QByteArray run(const QString &program, const QStringList &arguments) const
    {
        QProcess tool;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert(u"DISPLAY"_s, display);
        tool.setProcessEnvironment(env);
        tool.start(program, arguments);
        tool.waitForFinished(5000);
        return tool.readAllStandardOutput();
    }

    QProcess m_x;
    QProcess m_tray;
    QString m_missing;
};

TrayDesk *desk = nullptr;

// How far the icon as shown is from `icon` drawn on the same background: the mean
// difference per channel.
double distance(const QImage &shown, const QIcon &icon)
{
    const QImage x = shown.convertToFormat(QImage::Format_RGB32);
    QImage y(x.size(), QImage::Format_RGB32);
    y.fill(x.pixelColor(0, 0));
    QPainter(&y).drawPixmap(0, 0, icon.pixmap(x.size()));
    double sum = 0;
    for (int row = 0; row < x.height(); ++row) {
        for (int col = 0; col < x.width(); ++col) {
            const QRgb p = x.pixel(col, row), q = y.pixel(col, row);
            sum += std::abs(qRed(p) - qRed(q)) + std::abs(qGreen(p) - qGreen(q)) + std::abs(qBlue(p) - qBlue(q));
        }
    }
    return sum / (3.0 * x.width() * x.height());
}

} // namespace

class TestTray : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        if (!desk->ready())
            QSKIP(qPrintable(u"no X server with a tray host for this test: "_s + desk->why()));
        QQuickStyle::setStyle(u"Fusion"_s);
        FixtureApp::registerQmlSingletons();
    }

    void iconShowsTheCountdownAndOpensThePopover()
    {
        QTRY_VERIFY_WITH_TIMEOUT(QSystemTrayIcon::isSystemTrayAvailable(), 10'000);
        FixtureRig rig;
        // 9:05: the first meeting, with Priya Raman, starts in 25 minutes.
        rig.app.clock.set(QDateTime(QDate(2026, 3, 10), QTime(9, 5), QTimeZone("America/New_York")));
        QQmlApplicationEngine engine;
        engine.addImportPath(u"qrc:/qt/qml"_s);
        engine.addImageProvider(u"icon"_s, new IconProvider);
        TrayController tray(engine, rig.app.model());

        QTRY_VERIFY_WITH_TIMEOUT(!tray.icon().geometry().isEmpty(), 10'000);
        // trayer doesn't tell the icon it was embedded, so Qt can't say where it is.
        QRect icon;
        QTRY_VERIFY_WITH_TIMEOUT(!(icon = desk->placed(tray.icon().geometry().size())).isEmpty(), 5'000);
        QCOMPARE(tray.icon().toolTip(), u"Priya in 25m"_s);

        // What the tray host shows is the countdown, not the plain symbol.
        QTest::qWait(300);
        const QImage shown = QGuiApplication::primaryScreen()->grabWindow(0, icon.x(), icon.y(), icon.width(),
                                                                          icon.height()).toImage();
        const double toText = distance(shown, TrayIcon::render(u"25m"_s));
        const double toPlain = distance(shown, TrayIcon::render(QString()));
        QVERIFY2(toText < toPlain, qPrintable(u"drawn %1 from the countdown, %2 from the plain icon"_s.arg(toText).arg(toPlain)));

        const QPoint middle = icon.topLeft() + QPoint(icon.width() / 2, icon.height() / 2);
        desk->click(middle);
        QTRY_VERIFY(tray.popover() && tray.popover()->isVisible());
        const QRect popover = tray.popover()->geometry();
        // Below the icon on this top panel, and reaching across it.
        QVERIFY2(std::abs(popover.top() - (icon.bottom() + 1 + 6)) <= 2,
                 qPrintable(u"popover at %1, icon ends at %2"_s.arg(popover.top()).arg(icon.bottom())));
        QVERIFY(popover.left() <= middle.x() && middle.x() <= popover.right());
        QCOMPARE(popover.width(), 340);

        // A second click so soon after the first would be a double click, which leaves it open.
        QTest::qWait(QGuiApplication::styleHints()->mouseDoubleClickInterval() + 100);
        desk->click(middle);
        QTRY_VERIFY(!tray.popover()->isVisible());
    }
};

int main(int argc, char *argv[])
{
    TrayDesk xserver;
    desk = &xserver;
    if (xserver.ready()) {
        qputenv("DISPLAY", xserver.display.toLocal8Bit());
        qputenv("QT_QPA_PLATFORM", "xcb");
        // The XEmbed tray of trayer, even where the session offers a D-Bus tray.
        qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent");
    }
    QApplication app(argc, argv);
    TestTray test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_tray.moc"
