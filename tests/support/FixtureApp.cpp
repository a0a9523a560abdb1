#include "FixtureApp.h"

#include "APIError.h"
#include "FixtureSnapshot.h"
#include "Keychain.h"
#include "SnapshotCache.h"

#include <QDir>
#include <QQmlEngine>

#include <chrono>

using namespace Qt::StringLiterals;

namespace quorvane::test {

namespace {
FixtureApp *current = nullptr;
} // namespace

FixtureApp::FixtureApp(State state)
    : FixtureApp(Options{state})
{}

FixtureApp::FixtureApp(const Options &options)
    : clock(FixtureSnapshot::now())
    , opener([this](const QUrl &url) {
        opened.append(url);
        return true;
    })
{
    prepare(options);
    current = this;
}

FixtureApp::~FixtureApp()
{
    if (current == this)
        current = nullptr;
}

const char *FixtureApp::name(State state)
{
    switch (state) {
    case State::withData:
        return "withData";
    case State::signedOut:
        return "signedOut";
    case State::offline:
        return "offline";
    case State::errorBanner:
        return "errorBanner";
    case State::toast:
        return "toast";
    case State::loading:
        return "loading";
    }
    return "?";
}

void FixtureApp::prepare(const Options &options)
{
    Q_ASSERT(m_folder.isValid());
    const State state = options.state;
    m_dataDirectory = QDir(m_folder.path()).filePath(u"Quorvane"_s);
    m_settings = std::make_unique<QSettings>(m_folder.filePath(u"Quorvane.conf"_s), QSettings::IniFormat);
    m_preferences = std::make_unique<Preferences>(*m_settings);
    m_preferences->setOnboarded(options.onboarded);

    const Snapshot data = options.emptyData ? FixtureSnapshot::empty() : FixtureSnapshot::make();
    m_transport = std::make_shared<FixtureTransport>(data, clock.now());
    if (state != State::signedOut)
        Keychain(secrets).write(QString::fromLatin1(token));
    if (state != State::signedOut && state != State::loading)
        SnapshotCache(QDir(m_dataDirectory).filePath(u"cache-v2.json"_s)).save(data);
    if (state == State::offline)
        m_transport->mode = FixtureTransport::Mode::fail;
    else if (state == State::errorBanner)
        m_transport->mode = FixtureTransport::Mode::status;
    else if (state == State::loading)
        m_transport->mode = FixtureTransport::Mode::silent;

    AppEnvironment &env = m_environment;
    env.clock = &clock;
    env.transport = m_transport;
    env.secrets = &secrets;
    env.notifier = &notifier;
    env.preferences = m_preferences.get();
    env.opener = &opener;
    env.clipboard = &clipboard;
    env.dataDirectory = m_dataDirectory;
    env.locale = QString::fromLatin1(FixtureSnapshot::locale);
    env.zone = QString::fromLatin1(FixtureSnapshot::zone);
    env.timings.toast = std::chrono::hours(1); // a toast stays put for a picture
    m_model = std::make_unique<AppModel>(env);
    m_setup = std::make_unique<SetupServices>(*m_model, env, loginItem);
    m_commands = std::make_unique<CommandTable>(*m_model, m_shell, opener);
    m_commands->attachUpdater(&updater);

    // The banners as the first refresh would leave them, there before anything starts.
    if (state == State::offline)
        m_model->handle(std::make_exception_ptr(APIError::offline()));
    else if (state == State::errorBanner)
        m_model->handle(std::make_exception_ptr(APIError::server(500, u"The server had a problem."_s)));
    else if (state == State::toast)
        m_model->toast(options.toastText);
}

void FixtureApp::registerQmlSingletons()
{
    qmlRegisterSingletonType<AppModel>("Quorvane.App", 1, 0, "App", [](QQmlEngine *, QJSEngine *) -> AppModel * {
        Q_ASSERT_X(current, "FixtureApp", "a FixtureApp must exist while QML runs");
        QQmlEngine::setObjectOwnership(&current->model(), QQmlEngine::CppOwnership);
        return &current->model();
    });
    qmlRegisterSingletonType<ShellController>(
        "Quorvane.App", 1, 0, "Shell", [](QQmlEngine *, QJSEngine *) -> ShellController * {
            Q_ASSERT_X(current, "FixtureApp", "a FixtureApp must exist");
            QQmlEngine::setObjectOwnership(&current->shell(), QQmlEngine::CppOwnership);
            return &current->shell();
        });
    qmlRegisterSingletonType<CommandTable>(
        "Quorvane.App", 1, 0, "Commands", [](QQmlEngine *, QJSEngine *) -> CommandTable * {
            Q_ASSERT_X(current, "FixtureApp", "a FixtureApp must exist");
            QQmlEngine::setObjectOwnership(&current->commands(), QQmlEngine::CppOwnership);
            return &current->commands();
        });
    qmlRegisterSingletonType<SetupServices>(
        "Quorvane.App", 1, 0, "Setup", [](QQmlEngine *, QJSEngine *) -> SetupServices * {
            Q_ASSERT_X(current, "FixtureApp", "a FixtureApp must exist");
            QQmlEngine::setObjectOwnership(&current->setup(), QQmlEngine::CppOwnership);
            return &current->setup();
        });
    qmlRegisterSingletonType<Updater>("Quorvane.App", 1, 0, "Updates", [](QQmlEngine *, QJSEngine *) -> Updater * {
        Q_ASSERT_X(current, "FixtureApp", "a FixtureApp must exist");
        QQmlEngine::setObjectOwnership(&current->updater, QQmlEngine::CppOwnership);
        return &current->updater;
    });
}

} // namespace quorvane::test
