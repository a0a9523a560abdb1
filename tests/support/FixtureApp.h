#pragma once

#include "Clipboard.h"
#include "FixedClock.h"
#include "FixtureTransport.h"
#include "MemoryLoginItem.h"
#include "MemorySecretStore.h"
#include "MemoryUpdater.h"
#include "QuietNotifier.h"
#include "UrlOpener.h"
#include "model/AppModel.h"
#include "model/Preferences.h"
#include "onboarding/SetupServices.h"
#include "shell/CommandTable.h"
#include "shell/ShellController.h"

#include <QSettings>
#include <QTemporaryDir>

#include <memory>

class QQmlEngine;

namespace quorvane::test {

// Copied text, kept for inspection.
class FixtureClipboard final : public Clipboard
{
public:
    void setText(const QString &text) override { texts.append(text); }
    QStringList texts;
};

// A whole application model at a fixed moment (Tuesday 2026-03-10, 09:40 in New York, en_US),
// with no network, no keyring and no desktop services, in throwaway folders: for UI tests
// and the screenshot renderer. Each state is set up as a user would meet it, including what
// the first refresh will find, so starting the model keeps the state.
class FixtureApp
{
public:
    enum class State {
        withData,    // signed in, cached data, a server that answers
        signedOut,   // no token, no cache
        offline,     // cached data; the server is unreachable and the offline banner shows
        errorBanner, // cached data; the server answers 500 and the banner offers a retry
        toast,       // like withData, with a toast showing (it stays until dismissed)
        loading,     // signed in, nothing cached, the first refresh never answers: skeletons
    };

    struct Options {
        State state = State::withData;
        bool onboarded = true;  // false: the shell opens the welcome guide at start
        bool emptyData = false; // the account without bookings or polls
        QString toastText = QStringLiteral("Copied link for Consultation");
    };

    static constexpr char token[] = "fixture-token";

    explicit FixtureApp(State state = State::withData);
    explicit FixtureApp(const Options &options);
    ~FixtureApp();
    FixtureApp(const FixtureApp &) = delete;
    FixtureApp &operator=(const FixtureApp &) = delete;

    [[nodiscard]] AppModel &model() { return *m_model; }
    [[nodiscard]] ShellController &shell() { return m_shell; }
    [[nodiscard]] SetupServices &setup() { return *m_setup; }
    [[nodiscard]] CommandTable &commands() { return *m_commands; }
    [[nodiscard]] const AppEnvironment &environment() const { return m_environment; }
    [[nodiscard]] Preferences &preferences() { return *m_preferences; }
    [[nodiscard]] FixtureTransport &transport() { return *m_transport; }
    [[nodiscard]] const QString &dataDirectory() const { return m_dataDirectory; }
    [[nodiscard]] static const char *name(State state);

    // Makes `App`, `Shell`, `Commands`, `Setup` and `Updates` in QML resolve to the newest FixtureApp. Once per process,
    // before the first engine loads anything; each new engine sees the app alive then.
    static void registerQmlSingletons();

    FixedClock clock;
    MemorySecretStore secrets;
    QuietNotifier notifier;
    FixtureClipboard clipboard;
    MemoryLoginItem loginItem;
    MemoryUpdater updater;
    QList<QUrl> opened;
    UrlOpener opener;

private:
    void prepare(const Options &options);

    QTemporaryDir m_folder;
    QString m_dataDirectory;
    std::unique_ptr<QSettings> m_settings;
    std::unique_ptr<Preferences> m_preferences;
    std::shared_ptr<FixtureTransport> m_transport;
    AppEnvironment m_environment;
    ShellController m_shell;
    std::unique_ptr<AppModel> m_model;
    std::unique_ptr<SetupServices> m_setup;
    std::unique_ptr<CommandTable> m_commands;
};

} // namespace quorvane::test
