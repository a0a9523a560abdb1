#include "linux/AutostartLoginItem.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <unistd.h>

using namespace quorvane;
using namespace Qt::StringLiterals;

namespace {

const QString program = u"/opt/Quorvane/quorvane"_s;

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
    void turningOnAndOff()
    {
        QTemporaryDir config;
        AutostartLoginItem item(config.path(), program);
        QCOMPARE(item.entryPath(), config.filePath(u"autostart/com.peldrachen.quorvane.desktop"_s));
        QVERIFY(!item.isEnabled());

        QVERIFY(item.set(true));
        QVERIFY(item.isEnabled());
        const QString entry = read(item.entryPath());
        QVERIFY(entry.startsWith(u"[Desktop Entry]\n"_s));
        QVERIFY(entry.contains(u"\nType=Application\n"_s));
        QVERIFY(entry.contains(u"\nExec=/opt/Quorvane/quorvane\n"_s));

        // Turning it on again over an entry the desktop had switched off makes it count again.
        QVERIFY(write(item.entryPath(), entry + u"Hidden=true\n"_s));
        QVERIFY(!item.isEnabled());
        QVERIFY(item.set(true));
        QVERIFY(item.isEnabled());

        QVERIFY(item.set(false));
        QVERIFY(!QFile::exists(item.entryPath()));
        QVERIFY(!item.isEnabled());
        QVERIFY(item.set(false));
    }

    void readsTheDesktopsSwitches_data()
    {
        QTest::addColumn<QString>("content");
        QTest::addColumn<bool>("enabled");

        const QString head = u"[Desktop Entry]\nType=Application\nExec=quorvane\n"_s;
        QTest::newRow("plain entry") << head << true;
        QTest::newRow("hidden") << head + u"Hidden=true\n"_s << false;
        QTest::newRow("hidden with blanks") << head + u"Hidden = true\n"_s << false;
        QTest::newRow("GNOME switch off") << head + u"X-GNOME-Autostart-enabled=false\n"_s << false;
        QTest::newRow("switch in another group")
            << head + u"[Desktop Action quit]\nHidden=true\nX-GNOME-Autostart-enabled=false\n"_s << true;
        QTest::newRow("longer key") << head + u"HiddenX=true\n"_s << true;
    }

    void readsTheDesktopsSwitches()
    {
        QFETCH(QString, content);
        QFETCH(bool, enabled);

        QTemporaryDir config;
        AutostartLoginItem item(config.path(), program);
        QVERIFY(write(item.entryPath(), content));
        QCOMPARE(item.isEnabled(), enabled);
    }

    void execValue_data()
    {
        QTest::addColumn<QString>("program");
        QTest::addColumn<QString>("exec");

        QTest::newRow("plain") << u"/usr/bin/quorvane"_s << u"/usr/bin/quorvane"_s;
        QTest::newRow("space") << u"/home/ann/My Apps/Quorvane.AppImage"_s
                               << u"\"/home/ann/My Apps/Quorvane.AppImage\""_s;
        QTest::newRow("percent is not a field code") << u"/opt/100%/quorvane"_s
                                                     << u"/opt/100%%/quorvane"_s;
        QTest::newRow("dollar") << u"/opt/$HOME/q"_s << u"\"/opt/\\\\$HOME/q\""_s;
        QTest::newRow("quote") << u"/opt/a\"b/q"_s << u"\"/opt/a\\\\\"b/q\""_s;
        QTest::newRow("backslash") << u"/opt/a\\b/q"_s << u"\"/opt/a\\\\\\\\b/q\""_s;
        QTest::newRow("newline") << u"/opt/a\nb"_s << u"\"/opt/a\\nb\""_s;
    }

    void execValue()
    {
        QFETCH(QString, program);
        QFETCH(QString, exec);
        QCOMPARE(AutostartLoginItem::execValue(program), exec);
    }

    void reportsWhatCouldNotBeDone()
    {
        QTemporaryDir config;
        // A file where the autostart directory should be.
        QVERIFY(write(config.filePath(u"autostart"_s), u"x"_s));
        AutostartLoginItem blocked(config.path(), program);
        QVERIFY(!blocked.set(true));
        QVERIFY(!blocked.isEnabled());

        QTemporaryDir other;
        AutostartLoginItem item(other.path(), program);
        QVERIFY(item.set(true));
        if (geteuid() == 0)
            QSKIP("root ignores directory permissions");
        const QString dir = QFileInfo(item.entryPath()).absolutePath();
        QVERIFY(QFile::setPermissions(dir, QFile::ReadOwner | QFile::ExeOwner));
        const bool removed = item.set(false);
        QFile::setPermissions(dir, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        QVERIFY(!removed);
        QVERIFY(item.isEnabled());
    }

    void followsXdgConfigHomeAndAppImage()
    {
        QTemporaryDir config;
        qputenv("XDG_CONFIG_HOME", config.path().toUtf8());
        qputenv("APPIMAGE", "/home/ann/Apps/Quorvane-2.0.AppImage");
        AutostartLoginItem item;
        QVERIFY(item.set(true));
        QVERIFY(QFile::exists(config.filePath(u"autostart/com.peldrachen.quorvane.desktop"_s)));
        QVERIFY(read(item.entryPath()).contains(u"\nExec=/home/ann/Apps/Quorvane-2.0.AppImage\n"_s));

        qunsetenv("APPIMAGE");
        QCOMPARE(AutostartLoginItem::currentExecutable(), QCoreApplication::applicationFilePath());
        qunsetenv("XDG_CONFIG_HOME");
    }
};

QTEST_GUILESS_MAIN(AutostartLoginItemTest)
#include "tst_autostart_login_item.moc"
