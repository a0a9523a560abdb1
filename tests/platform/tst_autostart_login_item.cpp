// The login item as an XDG autostart entry: writing and removing it, reading the switches other
// tools set in it, quoting the program for Exec, and failures.
#include "linux/AutostartLoginItem.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace quorvane;
using namespace Qt::StringLiterals;

namespace {

QString read(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

bool write(const QString &path, const QString &content)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content.toUtf8()) >= 0;
}

} // namespace

class AutostartLoginItemTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // On writes the entry in XDG_CONFIG_HOME, starting the AppImage when running from one, and
    // over an entry the desktop had switched off makes it count again. Off removes it; with
    // nothing to remove, that is no failure.
    void turningOnAndOff()
    {
        QTemporaryDir config;
        qputenv("XDG_CONFIG_HOME", config.path().toUtf8());
        qputenv("APPIMAGE", "/home/ann/Apps/Quorvane-2.0.AppImage");
        AutostartLoginItem item;
        qunsetenv("APPIMAGE");
        qunsetenv("XDG_CONFIG_HOME");
        QCOMPARE(AutostartLoginItem::currentExecutable(), QCoreApplication::applicationFilePath());
        QVERIFY(!item.isEnabled());
        QVERIFY(item.set(true));
        QVERIFY(item.isEnabled());
        const QString entry = read(config.filePath(u"autostart/com.peldrachen.quorvane.desktop"_s));
        QVERIFY(entry.startsWith(u"[Desktop Entry]\nType=Application\n"_s));
        QVERIFY(entry.contains(u"\nExec=/home/ann/Apps/Quorvane-2.0.AppImage\n"_s));

        QVERIFY(write(item.entryPath(), entry + u"Hidden=true\n"_s));
        QVERIFY(!item.isEnabled());
        QVERIFY(item.set(true));
        QVERIFY(item.isEnabled());
        QVERIFY(item.set(false));
        QVERIFY(!QFile::exists(item.entryPath()));
        QVERIFY(item.set(false));
    }

    // Hidden and GNOME's own switch turn an entry off, but only in its main group.
    void readsTheDesktopsSwitches()
    {
        QTemporaryDir config;
        AutostartLoginItem item(config.path(), u"/opt/q"_s);
        const auto enabled = [&](const QString &extra) {
            return write(item.entryPath(), u"[Desktop Entry]\nType=Application\nExec=quorvane\n"_s + extra)
                   && item.isEnabled();
        };
        QVERIFY(!enabled(u"Hidden = true\n"_s));
        QVERIFY(!enabled(u"X-GNOME-Autostart-enabled=false\n"_s));
        QVERIFY(enabled(u"[Desktop Action quit]\nHidden=true\nX-GNOME-Autostart-enabled=false\n"_s));
        QVERIFY(enabled(u"HiddenX=true\n"_s));
    }

    // Quoted and escaped as a desktop entry's Exec wants, so any path starts the program.
    void execValue()
    {
        QCOMPARE(AutostartLoginItem::execValue(u"/home/ann/My Apps/Q.AppImage"_s),
                 u"\"/home/ann/My Apps/Q.AppImage\""_s);
        QCOMPARE(AutostartLoginItem::execValue(u"/opt/100%/q"_s), u"/opt/100%%/q"_s); // not a field code
        QCOMPARE(AutostartLoginItem::execValue(u"/opt/$HOME/q"_s), u"\"/opt/\\\\$HOME/q\""_s);
        QCOMPARE(AutostartLoginItem::execValue(u"/opt/a\\b/q"_s), u"\"/opt/a\\\\\\\\b/q\""_s);
    }

    // A file where the directory should be.
    void reportsWhatCouldNotBeDone()
    {
        QTemporaryDir config;
        QVERIFY(write(config.filePath(u"autostart"_s), u"x"_s));
        AutostartLoginItem blocked(config.path(), u"/opt/q"_s);
        QVERIFY(!blocked.set(true));
        QVERIFY(!blocked.isEnabled());
    }
};

QTEST_GUILESS_MAIN(AutostartLoginItemTest)
#include "tst_autostart_login_item.moc"
