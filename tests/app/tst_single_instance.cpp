// One running instance per settings: later launches hand their window over, a socket left by
// a crash is taken over, and where the socket lives.
#include "SingleInstance.h"

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
        QObject::connect(&instance, &SingleInstance::requested, &instance, [this](const QString &id) {
            const QMutexLocker lock(&mutex);
            received.append(id);
        }, Qt::DirectConnection);
        instance.moveToThread(&thread);
        thread.start();
    }
    ~RunningInstance()
    {
        QThread *home = QThread::currentThread();
        QMetaObject::invokeMethod(&instance, [this, home] { instance.moveToThread(home); },
                                  Qt::BlockingQueuedConnection);
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
    const QByteArray name = QFile::encodeName(path);
    qstrncpy(address.sun_path, name.constData(), sizeof(address.sun_path));
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

    void firstLaunchRunsAndListens()
    {
        SingleInstance first(path());
        QVERIFY(!first.handOver(u"main"_s));
        QVERIFY(first.isListening());
    }

    // Later launches hand their window over, in order; none of them may listen meanwhile, and
    // asking whether anyone listens is no request.
    void laterLaunchesHandTheirWindowOver()
    {
        RunningInstance running(path());
        QVERIFY(running.listening);
        const QStringList requests{u"main"_s, u"about"_s, u"share"_s, u"main"_s};
        for (const QString &request : requests) {
            SingleInstance launch(path());
            QVERIFY(launch.handOver(request));
            QVERIFY(!launch.isListening());
        }
        SingleInstance rival(path());
        QVERIFY(!rival.listen());
        // The running instance passes a request on before it confirms it.
        QCOMPARE(running.requests(), requests);
    }

    void aSocketLeftByACrashIsTakenOver()
    {
        QVERIFY(leaveDeadSocket(path()));
        SingleInstance probe(path());
        QVERIFY(!probe.forward(u"main"_s));

        RunningInstance running(path());
        QVERIFY(running.listening);
        SingleInstance launch(path());
        QVERIFY(launch.handOver(u"about"_s));
        QCOMPARE(running.requests(), QStringList{u"about"_s});
    }

    void withoutASocketTheAppStillRuns()
    {
        SingleInstance launch(m_folder.filePath(u"no-such-folder/instance"_s));
        QVERIFY(!launch.handOver(u"main"_s));
        QVERIFY(!launch.isListening());
    }

    void whereTheSocketLives_data()
    {
        const QString home = QDir::homePath();
        QTest::addColumn<QString>("runtime");
        QTest::addColumn<QString>("config");
        QTest::addColumn<QString>("expected"); // %1: the temp folder, %2: the user id

        QTest::newRow("usual settings") << u"/run/user/1000"_s << home + u"/.config"_s
                                        << u"/run/user/1000/com.peldrachen.quorvane.instance"_s;
        QTest::newRow("usual settings, written otherwise") << u"/run/user/1000"_s << home + u"/.config/"_s
                                                           << u"/run/user/1000/com.peldrachen.quorvane.instance"_s;
        QTest::newRow("no runtime folder") << QString() << home + u"/.config"_s
                                           << u"%1/com.peldrachen.quorvane.instance-%2"_s;
        QTest::newRow("runtime folder gone") << u"/nonexistent/run"_s << home + u"/.config"_s
                                             << u"%1/com.peldrachen.quorvane.instance-%2"_s;
    }
    void whereTheSocketLives()
    {
        QFETCH(QString, runtime);
        QFETCH(QString, config);
        QFETCH(QString, expected);
        if (runtime.startsWith(u"/run/"_s))
            runtime = m_folder.path(); // a folder that exists, standing in for /run/user/ID
        expected.replace(u"/run/user/1000"_s, m_folder.path());
        QCOMPARE(SingleInstance::pathFor(runtime, config), expected.arg(QDir::tempPath()).arg(::getuid()));
    }

    void otherSettingsMakeAnotherInstance()
    {
        const QString usual = SingleInstance::pathFor(m_folder.path(), QDir::home().filePath(u".config"_s));
        const QString demo = SingleInstance::pathFor(m_folder.path(), u"/tmp/quorvane-demo.1/config"_s);
        const QString other = SingleInstance::pathFor(m_folder.path(), u"/tmp/quorvane-demo.2/config"_s);
        QVERIFY(demo != usual && other != usual && demo != other);
        QCOMPARE(SingleInstance::pathFor(m_folder.path(), u"/tmp/quorvane-demo.1/config/"_s), demo);
        QVERIFY(demo.endsWith(u".instance"_s));
    }

private:
    [[nodiscard]] QString path() const { return m_folder.filePath(u"instance"_s); }

    QTemporaryDir m_folder;
};

QTEST_GUILESS_MAIN(TestSingleInstance)
#include "tst_single_instance.moc"
