// The token store against a real gnome-keyring, in a private session of the test's own
// (registered to run under tests/support/run-in-session).
#include "Keychain.h"
#include "linux/LibsecretStore.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QProcess>
#include <QTest>

using namespace quorvane;
using namespace Qt::StringLiterals;

namespace {

QDBusMessage callSecrets(const QString &method, const QVariantList &arguments,
                         const QString &interface = u"org.freedesktop.Secret.Service"_s)
{
    QDBusMessage call =
        QDBusMessage::createMethodCall(u"org.freedesktop.secrets"_s, u"/org/freedesktop/secrets"_s, interface, method);
    call.setArguments(arguments);
    return QDBusConnection::sessionBus().call(call);
}

// secret-tool, standing for any other program on the desktop that uses the same store.
QString secretTool(const QStringList &arguments, const QByteArray &input = {})
{
    QProcess tool;
    tool.setProcessChannelMode(QProcess::MergedChannels); // attributes come on stderr
    tool.start(u"secret-tool"_s, arguments);
    tool.write(input);
    tool.closeWriteChannel();
    tool.waitForFinished(10'000);
    return QString::fromUtf8(tool.readAll());
}

} // namespace

class TestKeychain : public QObject
{
    Q_OBJECT

    LibsecretStore m_store;
    Keychain m_keychain{m_store};

private Q_SLOTS:
    void init() { m_keychain.signOut(); }

    // One item per account, which other tools see with our label and attributes; an empty
    // write erases it, and counts as success even when there was nothing to erase.
    void writeReadErase()
    {
        const QString value = u"tøkén-✓-\U0001F511"_s;
        QVERIFY(m_keychain.write(u""_s));
        QVERIFY(m_keychain.write(u"replaced"_s));
        QVERIFY(m_keychain.write(value));
        QCOMPARE(m_keychain.read(Keychain::apiAccount), std::optional(value));
        const QString listing = secretTool({u"search"_s, u"--all"_s, u"service"_s, Keychain::service});
        QCOMPARE(listing.count(u"label = Quorvane account token"_s), 1);
        QVERIFY(listing.contains(u"secret = "_s + value));
        QVERIFY(listing.contains(u"attribute.account = api-token"_s));
        QVERIFY(m_keychain.write(u""_s));
        QCOMPARE(m_keychain.read(Keychain::apiAccount), std::nullopt);
    }

    // A token an earlier client left under "sync-token" works until the next sign-in;
    // sign-out erases both.
    void tokenPrecedence_data()
    {
        QTest::addColumn<QString>("current"); // null: no item; empty: an empty item
        QTest::addColumn<QString>("legacy");
        QTest::addColumn<QString>("expected");
        QTest::newRow("legacy only") << QString() << u"old"_s << u"old"_s;
        QTest::newRow("current wins") << u"new"_s << u"old"_s << u"new"_s;
        QTest::newRow("empty current item") << u""_s << u"old"_s << u"old"_s;
    }
    void tokenPrecedence()
    {
        QFETCH(QString, current);
        QFETCH(QString, legacy);
        QFETCH(QString, expected);
        if (!current.isNull())
            QVERIFY(m_store.add(Keychain::service, Keychain::apiAccount, Keychain::label, current.toUtf8()));
        // Written by another program, as the earlier client was.
        secretTool({u"store"_s, u"--label=Q"_s, u"service"_s, Keychain::service, u"account"_s, Keychain::legacyAccount},
                   legacy.toUtf8());
        const std::optional<QString> token = m_keychain.token();
        QCOMPARE(token, std::optional(expected));
        m_keychain.signOut();
        QVERIFY(secretTool({u"search"_s, u"--all"_s, u"service"_s, Keychain::service}).isEmpty());
    }

    // A locked store looks like a signed-out client, refuses writes, and loses nothing.
    void lockedCollection()
    {
        QVERIFY(m_keychain.write(u"kept"_s));
        const auto collection =
            callSecrets(u"ReadAlias"_s, {u"default"_s}).arguments().value(0).value<QDBusObjectPath>();
        const QDBusMessage locked = callSecrets(u"Lock"_s, {QVariant::fromValue(QList<QDBusObjectPath>{collection})});
        QVERIFY2(locked.type() == QDBusMessage::ReplyMessage, qPrintable(locked.errorMessage()));

        QCOMPARE(m_keychain.token(), std::nullopt);
        QVERIFY(!m_keychain.write(u"replacement"_s));

        // gnome-keyring's own call to unlock without a prompt; a "plain" session is fine on a test bus.
        const QDBusMessage session =
            callSecrets(u"OpenSession"_s, {u"plain"_s, QVariant::fromValue(QDBusVariant(u""_s))});
        QDBusArgument password; // the Secret Service's secret struct, (oayays)
        password.beginStructure();
        password << session.arguments().value(1).value<QDBusObjectPath>() << QByteArray()
                 << qgetenv("QUORVANE_TEST_KEYRING_PASSWORD") << u"text/plain"_s;
        password.endStructure();
        const QDBusMessage unlocked =
            callSecrets(u"UnlockWithMasterPassword"_s, {QVariant::fromValue(collection), QVariant::fromValue(password)},
                        u"org.gnome.keyring.InternalUnsupportedGuiltRiddenInterface"_s);
        QVERIFY2(unlocked.type() == QDBusMessage::ReplyMessage, qPrintable(unlocked.errorMessage()));
        QCOMPARE(m_keychain.token(), std::optional(u"kept"_s));
    }
};

QTEST_GUILESS_MAIN(TestKeychain)
#include "tst_keychain.moc"
