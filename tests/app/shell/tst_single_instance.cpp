// One running instance per settings: later launches hand their window over, a socket left by
// a crash is taken over, and where the socket lives.
#include "shell/SingleInstance.h"

#include <QDir>
#include <QMutex>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace quorvane;

namespace {

// The running instance, on a thread of its own, as another process would be: the launch
// under test blocks while it talks to it.
class RunningInstance
{
public:
    explicit RunningInstance(const QString &path)
        : instance(path)
    {
        listening = instance.listen();
        QObject::connect(
            &instance, &SingleInstance::requested, &instance,
            [this](const QString &id) {
                const QMutexLocker lock(&mutex);
                received.append(id);
            },
            Qt::DirectConnection);
        instance.moveToThread(&thread);
        thread.start();
    }
    ~RunningInstance()
    {
        QThread *home = QThread::currentThread();
        QMetaObject::invokeMethod(
            &instance, [this, home] { instance.moveToThread(home); }, Qt::BlockingQueuedConnection);
        thread.quit();
        thread.wait();
    }
    QStringList requests()
    {
        const QMutexLocker lock(&mutex);
        return received;
    }

    SingleInstance instance;
    bool listening = false;

private:
    QThread thread;
    QMutex mutex;
    QStringList received;
};

// A socket file that nobody listens on: what an instance that crashed leaves behind.
bool leaveDeadSocket(const QString &path)
{
    const int fd = ::socket(AF_UNIX, SOCK_STREAM, 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    qstrncpy(address.sun_path, QFile::encodeName(path).constData(), sizeof(address.sun_path));
    const bool bound = ::bind(fd, reinterpret_cast<sockaddr *>(&address), sizeof(address)) == 0;
    ::close(fd);
    return bound && QFileInfo::exists(path);
}

} // namespace

class TestSingleInstance : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QVERIFY(m_folder.isValid()); }

    void aloneALaunchRuns()
    {
        SingleInstance first(path());
        QVERIFY(!first.handOver(u"main"_s) && first.isListening());
        SingleInstance nowhere(m_folder.filePath(u"no-such-folder/instance"_s));
        QVERIFY(!nowhere.handOver(u"main"_s) && !nowhere.isListening());
    }

    // The instance takes over what a crash left; later launches hand their window over, in
    // order, and none of them may listen meanwhile.
    void laterLaunchesHandTheirWindowOver()
    {
        QVERIFY(leaveDeadSocket(path()));
        QVERIFY(!SingleInstance(path()).forward(u"main"_s));
        RunningInstance running(path());
        QVERIFY(running.listening);
        const QStringList requests{u"main"_s, u"about"_s, u"share"_s, u"main"_s};
        for (const QString &request : requests) {
            SingleInstance launch(path());
            QVERIFY(launch.handOver(request));
            QVERIFY(!launch.isListening());
        }
        QVERIFY(!SingleInstance(path()).listen());
        // The running instance passes a request on before it confirms it.
        QCOMPARE(running.requests(), requests);
    }

    void whereTheSocketLives_data()
    {
        const QString config = QDir::homePath() + u"/.config"_s;
        const QString own = u"$run/com.peldrachen.quorvane.instance"_s;
        const QString shared = u"$tmp/com.peldrachen.quorvane.instance-$uid"_s;
        QTest::addColumn<QString>("runtime"); // "run": a folder that exists
        QTest::addColumn<QString>("config");
        QTest::addColumn<QString>("expected"); // with that folder, the temp folder and the user id

        QTest::newRow("usual settings") << u"run"_s << config << own;
        QTest::newRow("usual settings, final slash") << u"run"_s << config + u'/' << own;
        QTest::newRow("no runtime folder") << QString() << config << shared;
        QTest::newRow("runtime folder gone") << u"/nonexistent/run"_s << config << shared;
    }
    void whereTheSocketLives()
    {
        QFETCH(QString, runtime);
        QFETCH(QString, config);
        QFETCH(QString, expected);
        QCOMPARE(SingleInstance::pathFor(runtime == u"run"_s ? m_folder.path() : runtime, config),
                 expected.replace(u"$run"_s, m_folder.path())
                     .replace(u"$tmp"_s, QDir::tempPath())
                     .replace(u"$uid"_s, QString::number(::getuid())));
    }

    void otherSettingsMakeAnotherInstance()
    {
        const QString usual = SingleInstance::pathFor(m_folder.path(), QDir::home().filePath(u".config"_s));
        const QString demo = SingleInstance::pathFor(m_folder.path(), u"/tmp/quorvane-demo.1/config"_s);
        const QString other = SingleInstance::pathFor(m_folder.path(), u"/tmp/quorvane-demo.2/config"_s);
        QVERIFY(demo != usual && other != usual && demo != other);
        QCOMPARE(SingleInstance::pathFor(m_folder.path(), u"/tmp/quorvane-demo.1/config/"_s), demo);
    }

private:
    [[nodiscard]] QString path() const { return m_folder.filePath(u"instance"_s); }

    QTemporaryDir m_folder;
};

QTEST_GUILESS_MAIN(TestSingleInstance)
#include "tst_single_instance.moc"
