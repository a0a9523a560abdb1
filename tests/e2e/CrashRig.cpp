// The app's model at full speed for tst_e2e_kill: it refreshes and polls every few
// milliseconds, so its cache and tracker files are rewritten all the time, and the test kills
// it at random moments. Before the model starts it tells what it finds on disk; then it prints
// each save of the cache and each announcement. One write(2) per line, so a kill never leaves
// half a line.
//
//   crash-rig SERVER DATA_DIRECTORY SETTINGS_FILE
//
// Standard input brings the token, then one line per run wanted. Each run is a child process
// forked from this one, which has its libraries loaded already: "child PID" when it starts,
// "reaped" once it is gone.
#include "ChangeTracker.h"
#include "Clipboard.h"
#include "ISO.h"
#include "JSON.h"
#include "Keychain.h"
#include "MemorySecretStore.h"
#include "NetworkTransport.h"
#include "Notifier.h"
#include "SnapshotCache.h"
#include "SystemClock.h"
#include "UrlOpener.h"
#include "model/AppModel.h"
#include "model/Preferences.h"

#include <QCoreApplication>
#include <QFile>
#include <QNetworkAccessManager>
#include <QSettings>
#include <QTimer>

#include <cstdio>

#include <sys/wait.h>
#include <unistd.h>

using namespace quorvane;
using namespace Qt::StringLiterals;

namespace {

void say(const QString &line)
{
    const QByteArray bytes = (line + u'\n').toUtf8();
    (void)::write(STDOUT_FILENO, bytes.constData(), size_t(bytes.size()));
}

// "none", "torn" or the instant that dates the file.
template <class Read>
QString found(const QString &path, Read read)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return u"none"_s;
    const std::optional<Instant> at = read(file.readAll());
    return at ? ISO::string(*at) : u"torn"_s;
}

class PrintingNotifier final : public Notifier
{
public:
    void announce(const ChangeEvent &event, const QString &) override
    {
        say(u"announce %1 %2"_s.arg(event.booking.id,
                                    event.kind == ChangeEvent::Kind::booked ? u"booked"_s : u"cancelled"_s));
    }
    void scheduleReminders(const QList<Booking> &, int, const QHash<QString, QString> &) override {}
    void removeAll() override {}
    QCoro::Task<bool> authorized() override { co_return true; }
    QCoro::Task<bool> requestAuthorization() override { co_return true; }
};

struct NoClipboard final : Clipboard {
    void setText(const QString &) override {}
};

// One run: the model on the files as it finds them, until it is killed.
int run(int argc, char *argv[], const QByteArray &token)
{
    QCoreApplication app(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const QString dataDirectory = arguments[2];

    say(u"start cache %1 tracker %2"_s.arg(
        found(AppModel::cachePath(dataDirectory),
              [](const QByteArray &bytes) -> std::optional<Instant> {
                  const Result<Snapshot> s = JSON::decode<Snapshot>(bytes);
                  return s ? std::optional(s.value().savedAt) : std::nullopt;
              }),
        found(dataDirectory + u"/changes-v2.json"_s, [](const QByteArray &bytes) -> std::optional<Instant> {
            const std::optional<ChangeTracker> t = ChangeTracker::fromFileJson(bytes);
            return t ? std::optional(t->cursor) : std::nullopt;
        })));

    SystemClock clock;
    QNetworkAccessManager network;
    test::MemorySecretStore secrets;
    secrets.add(Keychain::service, Keychain::apiAccount, Keychain::label, token);
    PrintingNotifier notifier;
    QSettings settings(arguments[3], QSettings::IniFormat);
    Preferences preferences(settings);
    preferences.setServerURL(arguments[1]);
    UrlOpener opener([](const QUrl &) { return false; });
    NoClipboard clipboard;

    AppEnvironment env;
    env.clock = &clock;
    env.transport = std::make_shared<NetworkTransport>(network);
    env.secrets = &secrets;
    env.notifier = &notifier;
    env.preferences = &preferences;
    env.opener = &opener;
    env.clipboard = &clipboard;
    env.dataDirectory = dataDirectory;
    env.locale = u"en_US"_s;
    env.zone = u"UTC"_s;
    env.timings.tick = std::chrono::milliseconds(5);
    env.timings.stale = std::chrono::milliseconds(1); // every tick refreshes in full as well
    AppModel model(env);
    // Each time the cache was written anew.
    QObject::connect(&model, &AppModel::lastRefreshChanged, &model, [] { say(u"saved"_s); });
    model.start();
    // Between the model's own saves, the cache is written again and again with what the model
    // holds, through the same writer: a kill then most likely falls in the middle of a write.
    const SnapshotCache cache(AppModel::cachePath(dataDirectory));
    QTimer churn;
    QObject::connect(&churn, &QTimer::timeout, &model, [&] {
        if (model.snapshot().savedAt > distantPast())
            cache.save(model.snapshot());
    });
    churn.start(0);
    return QCoreApplication::exec();
}

} // namespace

int main(int argc, char *argv[])
{
    if (argc != 4)
        return 2;
    char line[512];
    if (!std::fgets(line, sizeof line, stdin))
        return 2;
    const QByteArray token = QByteArray(line).trimmed();
    // No Qt object exists in this process, and no thread but this one, so forking is safe.
    while (std::fgets(line, sizeof line, stdin)) {
        const pid_t child = ::fork();
        if (child == 0)
            ::_exit(run(argc, argv, token));
        if (child < 0)
            return 1;
        say(u"child %1"_s.arg(child));
        int status = 0;
        ::waitpid(child, &status, 0);
        say(u"reaped"_s);
    }
    return 0;
}
