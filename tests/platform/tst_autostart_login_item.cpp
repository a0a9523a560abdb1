#include "linux/AutostartLoginItem.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <unistd.h>

using namespace quorvane;

namespace {

const QString program = QStringLiteral("/opt/Quorvane/quorvane");

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

class AutostartLoginItemTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void turningOnAndOff();
    void readsTheDesktopsSwitches_data();
    void readsTheDesktopsSwitches();
    void execValue_data();
    void execValue();
    void reportsWhatCouldNotBeDone();
    void followsXdgConfigHomeAndAppImage();
};

void AutostartLoginItemTest::turningOnAndOff()
{
    QTemporaryDir config;
    AutostartLoginItem item(config.path(), program);
    QCOMPARE(item.entryPath(), config.filePath(QStringLiteral("autostart/com.peldrachen.quorvane.desktop")));
    QVERIFY(!item.isEnabled());
    QVERIFY(!item.needsApproval());

    QVERIFY(item.set(true));
    QVERIFY(item.isEnabled());
    const QString entry = read(item.entryPath());
    QVERIFY(entry.startsWith(QLatin1String("[Desktop Entry]\n")));
    QVERIFY(entry.contains(QLatin1String("\nType=Application\n")));
    QVERIFY(entry.contains(QLatin1String("\nExec=/opt/Quorvane/quorvane\n")));

    // Turning it on again over an entry the desktop had switched off makes it count again.
    QVERIFY(write(item.entryPath(), entry + QStringLiteral("Hidden=true\n")));
    QVERIFY(!item.isEnabled());
    QVERIFY(item.set(true));
    QVERIFY(item.isEnabled());

    QVERIFY(item.set(false));
    QVERIFY(!QFile::exists(item.entryPath()));
    QVERIFY(!item.isEnabled());
    QVERIFY(item.set(false));
}

void AutostartLoginItemTest::readsTheDesktopsSwitches_data()
{
    QTest::addColumn<QString>("content");
    QTest::addColumn<bool>("enabled");

    const QString head = QStringLiteral("[Desktop Entry]\nType=Application\nExec=quorvane\n");
    QTest::newRow("plain entry") << head << true;
    QTest::newRow("hidden") << head + QStringLiteral("Hidden=true\n") << false;
    QTest::newRow("hidden with blanks") << head + QStringLiteral("Hidden = true\n") << false;
    QTest::newRow("GNOME switch off") << head + QStringLiteral("X-GNOME-Autostart-enabled=false\n") << false;
    QTest::newRow("switch in another group")
        << head + QStringLiteral("[Desktop Action quit]\nHidden=true\nX-GNOME-Autostart-enabled=false\n") << true;
    QTest::newRow("longer key") << head + QStringLiteral("HiddenX=true\n") << true;
}

void AutostartLoginItemTest::readsTheDesktopsSwitches()
{
    QFETCH(QString, content);
    QFETCH(bool, enabled);

    QTemporaryDir config;
    AutostartLoginItem item(config.path(), program);
    QVERIFY(write(item.entryPath(), content));
    QCOMPARE(item.isEnabled(), enabled);
}

void AutostartLoginItemTest::execValue_data()
{
    QTest::addColumn<QString>("program");
    QTest::addColumn<QString>("exec");

    QTest::newRow("plain") << QStringLiteral("/usr/bin/quorvane") << QStringLiteral("/usr/bin/quorvane");
    QTest::newRow("space") << QStringLiteral("/home/ann/My Apps/Quorvane.AppImage")
                           << QStringLiteral("\"/home/ann/My Apps/Quorvane.AppImage\"");
    QTest::newRow("percent is not a field code") << QStringLiteral("/opt/100%/quorvane")
                                                 << QStringLiteral("/opt/100%%/quorvane");
    QTest::newRow("dollar") << QStringLiteral("/opt/$HOME/q") << QStringLiteral("\"/opt/\\\\$HOME/q\"");
    QTest::newRow("quote") << QStringLiteral("/opt/a\"b/q") << QStringLiteral("\"/opt/a\\\\\"b/q\"");
    QTest::newRow("backslash") << QStringLiteral("/opt/a\\b/q") << QStringLiteral("\"/opt/a\\\\\\\\b/q\"");
    QTest::newRow("newline") << QStringLiteral("/opt/a\nb") << QStringLiteral("\"/opt/a\\nb\"");
}

void AutostartLoginItemTest::execValue()
{
    QFETCH(QString, program);
    QFETCH(QString, exec);
    QCOMPARE(AutostartLoginItem::execValue(program), exec);
}

void AutostartLoginItemTest::reportsWhatCouldNotBeDone()
{
    QTemporaryDir config;
    // A file where the autostart directory should be.
    QVERIFY(write(config.filePath(QStringLiteral("autostart")), QStringLiteral("x")));
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

void AutostartLoginItemTest::followsXdgConfigHomeAndAppImage()
{
    QTemporaryDir config;
    qputenv("XDG_CONFIG_HOME", config.path().toUtf8());
    qputenv("APPIMAGE", "/home/ann/Apps/Quorvane-2.0.AppImage");
    AutostartLoginItem item;
    QVERIFY(item.set(true));
    QVERIFY(QFile::exists(config.filePath(QStringLiteral("autostart/com.peldrachen.quorvane.desktop"))));
    QVERIFY(read(item.entryPath()).contains(QLatin1String("\nExec=/home/ann/Apps/Quorvane-2.0.AppImage\n")));

    qunsetenv("APPIMAGE");
    QCOMPARE(AutostartLoginItem::currentExecutable(), QCoreApplication::applicationFilePath());
    qunsetenv("XDG_CONFIG_HOME");
}

QTEST_GUILESS_MAIN(AutostartLoginItemTest)
#include "tst_autostart_login_item.moc"
