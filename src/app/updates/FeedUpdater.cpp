#include "updates/FeedUpdater.h"

#include "APIError.h"
#include "Cancelled.h"
#include "Clock.h"
#include "QuorvaneAPI.h"
#include "UrlOpener.h"
#include "updates/StagedUpdate.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QSettings>

using namespace Qt::StringLiterals;

namespace quorvane {

namespace {
struct Text {
    Q_DECLARE_TR_FUNCTIONS(FeedUpdater)
};

const QString automaticKey = u"updates/automatic"_s;
const QString lastCheckKey = u"updates/lastCheck"_s;
constexpr qint64 day = 24 * 60 * 60;

QString failureText(std::exception_ptr failure)
{
    try {
        std::rethrow_exception(failure);
    } catch (const APIError &e) {
        return e.errorDescription();
    } catch (...) {}
    return Text::tr("The update feed couldn't be read.");
}

} // namespace

FeedUpdater::FeedUpdater(Config config, std::shared_ptr<HTTPTransport> transport, std::function<QUrl()> server,
                         QSettings &settings, const Clock &clock, const UrlOpener &opener, QObject *parent)
    : Updater(parent)
    , m_config(std::move(config))
    , m_transport(std::move(transport))
    , m_server(std::move(server))
    , m_settings(settings)
    , m_clock(clock)
    , m_opener(opener)
    , m_configured(m_config.publicKey.size() == 32)
{
    if (!m_configured)
        m_status = Text::tr("Updates aren't available in this build of Quorvane.");
    m_timer.setInterval(m_config.schedule);
    connect(&m_timer, &QTimer::timeout, this, &FeedUpdater::checkIfDue);
    if (m_configured) {
        m_timer.start();
        // A copy that was closed for days looks soon after it starts, not an hour later.
        QTimer::singleShot(m_config.firstLook, this, &FeedUpdater::checkIfDue);
    }
}

FeedUpdater::Install FeedUpdater::installOf(const QString &executable, bool builtPortable)
{
    const QString path = QFileInfo(executable).canonicalFilePath();
    if (path.startsWith(u"/usr/"_s))
        return Install::package;
    if (builtPortable && QFileInfo(QFileInfo(path).absolutePath()).isWritable())
        return Install::portable;
    return Install::development;
}

bool FeedUpdater::automatic() const
{
    return m_settings.value(automaticKey, true).toBool();
}

void FeedUpdater::setAutomatic(bool on)
{
    if (on == automatic())
        return;
    m_settings.setValue(automaticKey, on);
    Q_EMIT automaticChanged();
    checkIfDue();
}

QDateTime FeedUpdater::lastCheck() const
{
    return m_settings.value(lastCheckKey).toDateTime();
}

QString FeedUpdater::versionText() const
{
    const QString version = m_config.currentVersion.isEmpty() ? u"?"_s : m_config.currentVersion;
    const QString build = m_config.currentBuild > 0 ? QString::number(m_config.currentBuild) : u"?"_s;
    return u"%1 (%2)"_s.arg(version, build);
}

void FeedUpdater::checkIfDue()
{
    const QDateTime last = lastCheck();
    if (automatic() && canCheck() && (!last.isValid() || last.secsTo(m_clock.now()) >= day))
        check();
}

void FeedUpdater::check()
{
    if (!canCheck())
        return;
    QCoro::Task<> detached = checkNow();
    Q_UNUSED(detached);
}

void FeedUpdater::openNotes()
{
    if (m_found && !m_found->notes.isEmpty())
        m_opener.open(m_found->notes);
}

void FeedUpdater::finish(const QString &status, bool failed)
{
    m_checking = false;
    m_status = status;
    m_failed = failed;
    Q_EMIT stateChanged();
}

QCoro::Task<> FeedUpdater::checkNow()
{
    if (!canCheck())
        co_return;
    m_checking = true;
    m_failed = false;
    m_status = Text::tr("Checking for updates…");
    Q_EMIT stateChanged();
    const QuorvaneAPI api{m_server(), {}, m_transport};
    QByteArray document;
    std::exception_ptr failure;
    try {
        document = co_await api.fetchPublic(QUrl(u"appcast.xml"_s));
    } catch (...) {
        failure = std::current_exception();
    }
    if (failure) {
        finish(Text::tr("Couldn't check for updates: %1").arg(failureText(failure)), true);
        co_return;
    }
    m_settings.setValue(lastCheckKey, m_clock.now());
    const Appcast::Feed feed = Appcast::parse(document);
    m_found = Appcast::newest(feed, m_config.currentBuild, m_config.systemVersion);
    if (!m_found) {
        // A document that holds no release at all is no feed, rather than news of none.
        const bool noFeed = feed.releases.isEmpty() && feed.refused == 0;
        finish(noFeed ? Text::tr("Couldn't check for updates: the update feed couldn't be read.")
                      : Text::tr("Quorvane is up to date."),
               noFeed);
        co_return;
    }
    switch (m_config.install) {
    case Install::package:
        finish(Text::tr("Quorvane %1 is available. Your package manager delivers it with your other updates.")
                   .arg(m_found->version),
               false);
        co_return;
    case Install::development:
        finish(Text::tr("Quorvane %1 is available.").arg(m_found->version), false);
        co_return;
    case Install::portable:
        break;
    }
    co_await fetchAndStage(*m_found);
}

QCoro::Task<> FeedUpdater::fetchAndStage(Appcast::Release release)
{
    m_status = Text::tr("Downloading Quorvane %1…").arg(release.version);
    Q_EMIT stateChanged();
    const QuorvaneAPI api{m_server(), {}, m_transport};
    QByteArray bytes;
    std::exception_ptr failure;
    try {
        bytes = co_await api.fetchPublic(release.download);
    } catch (...) {
        failure = std::current_exception();
    }
    if (failure) {
        finish(Text::tr("Couldn't download Quorvane %1: %2").arg(release.version, failureText(failure)), true);
        co_return;
    }
    const Appcast::Check check = Appcast::verify(release, bytes, m_config.publicKey);
    if (check != Appcast::Check::ok) {
        finish(Appcast::refusal(check, release.version), true);
        co_return;
    }
    QString error;
    if (!StagedUpdate::stage(m_config.stagingDirectory, bytes, &error)) {
        finish(Text::tr("Couldn't keep the download of Quorvane %1: %2").arg(release.version, error), true);
        co_return;
    }
    finish(
        Text::tr("Quorvane %1 is downloaded and verified. It takes this version's place the next time Quorvane starts.")
            .arg(release.version),
        false);
}

} // namespace quorvane
