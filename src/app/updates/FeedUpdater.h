#pragma once

#include "updates/Updater.h"

#include "Appcast.h"
#include "HTTPTransport.h"

#include <QCoroTask>
#include <QTimer>

#include <functional>
#include <memory>

class QSettings;

namespace quorvane {

class Clock;
class UrlOpener;

// The updater on the service's signed feed (the server root's /appcast.xml).
class FeedUpdater final : public Updater
{
    Q_OBJECT

public:
    // How this copy came to be here, which decides what a newer release leads to.
    enum class Install {
        package,     // from the distribution's packages: the package manager updates it
        portable,    // a release in the user's own folders: it replaces itself
        development, // built from source: it only tells
    };

    struct Config {
        QByteArray publicKey; // 32 bytes; anything else and checks are off
        Install install = Install::development;
        QString currentVersion;                        // "2.0"
        int currentBuild = 0;                          // 200
        QString systemVersion;                         // this system's, to meet a release's minimum
        QString stagingDirectory;                      // where a portable copy keeps a verified download
        std::chrono::milliseconds schedule{3'600'000}; // how often to see whether a day has passed
        std::chrono::milliseconds firstLook{30'000};   // after the start, the first time
    };

    FeedUpdater(Config config, std::shared_ptr<HTTPTransport> transport, std::function<QUrl()> server,
                QSettings &settings, const Clock &clock, const UrlOpener &opener, QObject *parent = nullptr);

    // Where this executable lives decides: under /usr, a package; a copy that can write its
    // own folder and says it is portable, portable; else a development build.
    [[nodiscard]] static Install installOf(const QString &executable, bool builtPortable);

    [[nodiscard]] bool automatic() const override;
    void setAutomatic(bool on) override;
    [[nodiscard]] bool canCheck() const override { return m_configured && !m_checking; }
    [[nodiscard]] QDateTime lastCheck() const override;
    [[nodiscard]] QString versionText() const override;
    [[nodiscard]] QString status() const override { return m_status; }
    [[nodiscard]] QString availableVersion() const override { return m_found ? m_found->version : QString(); }
    [[nodiscard]] QString notesURL() const override { return m_found ? m_found->notes.toString() : QString(); }
    [[nodiscard]] bool failed() const override { return m_failed; }

    void check() override;
    void openNotes() override;

    // The check as a task, for tests to await.
    QCoro::Task<> checkNow();

private:
    void checkIfDue();
    void finish(const QString &status, bool failed);
    QCoro::Task<> fetchAndStage(Appcast::Release release);

    Config m_config;
    std::shared_ptr<HTTPTransport> m_transport;
    std::function<QUrl()> m_server;
    QSettings &m_settings;
    const Clock &m_clock;
    const UrlOpener &m_opener;
    QTimer m_timer;
    bool m_configured = false;
    bool m_checking = false;
    bool m_failed = false;
    QString m_status;
    std::optional<Appcast::Release> m_found;
};

} // namespace quorvane
