#include "shell/CommandTable.h"

#include "BuildInfo.h"
#include "UrlOpener.h"
#include "about/About.h"
#include "model/AppModel.h"
#include "shell/KeyLabel.h"
#include "shell/ShellController.h"
#include "updates/Updater.h"

using namespace Qt::StringLiterals;

namespace quorvane {

namespace {

QKeySequence ctrl(int key, Qt::KeyboardModifiers more = {})
{
    return QKeySequence(QKeyCombination(Qt::ControlModifier | more, Qt::Key(key)));
}

// Only a web page gets an item: the build configuration is trusted, but not with schemes.
QUrl webPage(const QString &text)
{
    const QUrl site(text.trimmed(), QUrl::StrictMode);
    const bool web = site.scheme() == "https"_L1 || site.scheme() == "http"_L1;
    return web && !site.host().isEmpty() && UrlOpener::allows(site) ? site : QUrl();
}

QUrl dashboard(const QUrl &base)
{
    QUrl url = base;
    QString path = url.path();
    if (!path.endsWith(u'/'))
        path += u'/';
    url.setPath(path + u"app"_s);
    return url;
}

} // namespace

CommandTable::CommandTable(AppModel &model, ShellController &shell, const UrlOpener &opener, QObject *parent)
    : CommandTable(model, shell, opener,
                   Maker{QString::fromUtf8(build::makerName), QString::fromUtf8(build::makerSite)}, parent)
{}

CommandTable::CommandTable(AppModel &model, ShellController &shell, const UrlOpener &opener, const Maker &maker,
                           QObject *parent)
    : QObject(parent)
{
    AppModel *app = &model;
    ShellController *windows = &shell;
    const UrlOpener *links = &opener;
    const auto open = [windows](AppWindow::Id window) { return [windows, window] { windows->open(window); }; };
    const QUrl site = webPage(maker.site);

    QList<Command::Row> rows;
    // In CommandId order. The sections come first: the palette lists them in this order.
    for (const AppSection section : Section::allCases()) {
        const int place = int(rows.size()) + 1;
        rows.append({u"go."_s + Section::id(section), Section::title(section), Section::symbol(section),
                     keys(CommandId::Id(CommandId::GoToday + place - 1)), u"Go to "_s + Section::title(section),
                     [app, section] { app->setSection(section); }});
    }
    rows.append({u"shareTimes"_s, u"Share Times…"_s, u"paperplane"_s, keys(CommandId::ShareTimes),
                 u"Quick Share times"_s, open(AppWindow::Share)});
    // The sheet belongs to the Polls screen, which must be showing first.
    rows.append(
        {u"newPoll"_s, u"New Poll"_s, u"plus.square.on.square"_s, keys(CommandId::NewPoll), u"New poll"_s, [app] {
             app->setSection(AppSection::polls);
             app->setShowNewPoll(true);
         }});
    rows.append({u"refresh"_s, u"Refresh"_s, u"arrow.clockwise"_s, keys(CommandId::Refresh), u"Refresh"_s,
                 [app] { app->refreshNow(); }});
    rows.append({u"openDashboard"_s, u"Open Web Dashboard"_s, u"safari"_s, {}, u"Open web dashboard"_s, [app, links] {
                     links->open(dashboard(app->baseURL()));
                 }});
    rows.append({u"openBookingPage"_s,
                 u"Open My Booking Page"_s,
                 u"person.crop.square"_s,
                 {},
                 u"Open my booking page"_s,
                 [app, links] {
                     const QUrl page(app->pageLink(), QUrl::StrictMode);
                     if (page.isValid())
                         links->open(page);
                 }});
    rows.append({u"settings"_s, u"Settings…"_s, u"gearshape"_s, keys(CommandId::Settings), u"Settings"_s,
                 open(AppWindow::Settings)});
    rows.append({u"commandPalette"_s, u"Command Palette…"_s, u"command"_s, keys(CommandId::CommandPalette), {}, [app] {
                     app->setShowPalette(true);
                 }});
    rows.append({u"joinNext"_s,
                 u"Join Next Meeting"_s,
                 u"video.fill"_s,
                 keys(CommandId::JoinNext),
                 {},
                 [app] { app->joinNext(); },
                 [app] { return app->canJoinNext(); }});
    rows.append({u"openMain"_s, u"Open Quorvane"_s, u"macwindow"_s, {}, {}, open(AppWindow::Main)});
    rows.append({u"welcomeGuide"_s, u"Welcome Guide"_s, u"questionmark.circle"_s, {}, {}, open(AppWindow::Onboarding)});
    rows.append({u"about"_s, u"About Quorvane"_s, u"info.circle"_s, {}, {}, open(AppWindow::About)});
    // Until an updater is attached there is nothing to check.
    rows.append({u"checkForUpdates"_s,
                 u"Check for Updates…"_s,
                 u"arrow.down.circle"_s,
                 {},
                 {},
                 // What the check finds shows in the Updates pane.
                 [updater = m_updater, windows] {
                     if (*updater)
                         (*updater)->check();
                     windows->openSettings(u"updates"_s);
                 },
                 [updater = m_updater] { return *updater && (*updater)->canCheck(); }});
    rows.append({u"madeBy"_s, About::madeBy(maker.name.trimmed()), u"person"_s, {}, {}, open(AppWindow::About)});
    rows.append({u"makerSite"_s,
                 site.isEmpty() ? QString() : About::siteName(site),
                 u"globe"_s,
                 {},
                 {},
                 [links, site] { links->open(site); },
                 {},
                 !site.isEmpty()});
    rows.append({u"quit"_s, u"Quit"_s, u"power"_s, keys(CommandId::Quit), {}, [windows] { windows->quit(); }});
    Q_ASSERT(rows.size() == CommandId::Quit + 1);

    for (Command::Row &row : rows)
        m_commands.append(new Command(std::move(row), this));
    Command *join = get(CommandId::JoinNext);
    connect(app, &AppModel::nextChanged, join, &Command::enabledChanged);
}

void CommandTable::attachUpdater(Updater *updater)
{
    *m_updater = updater;
    Command *check = get(CommandId::CheckForUpdates);
    connect(updater, &Updater::stateChanged, check, &Command::enabledChanged);
    Q_EMIT check->enabledChanged();
}

Command *CommandTable::get(CommandId::Id id) const
{
    return m_commands.value(id);
}

QList<Command *> CommandTable::sections() const
{
    return m_commands.mid(CommandId::GoToday, CommandId::GoInsights - CommandId::GoToday + 1);
}

QList<Command *> CommandTable::paletteCommands() const
{
    QList<Command *> out;
    for (Command *command : m_commands) {
        if (!command->paletteTitle().isEmpty() && command->available())
            out.append(command);
    }
    return out;
}

QKeySequence CommandTable::keys(CommandId::Id id)
{
    switch (id) {
    case CommandId::GoToday:
    case CommandId::GoBookings:
    case CommandId::GoTypes:
    case CommandId::GoAvailability:
    case CommandId::GoPolls:
    case CommandId::GoInsights:
        return ctrl(Qt::Key_1 + (id - CommandId::GoToday));
    case CommandId::ShareTimes:
        return ctrl(Qt::Key_S, Qt::ShiftModifier);
    case CommandId::NewPoll:
        return ctrl(Qt::Key_N, Qt::ShiftModifier);
    case CommandId::Refresh:
        return ctrl(Qt::Key_R);
    case CommandId::Settings:
        return ctrl(Qt::Key_Comma);
    case CommandId::CommandPalette:
        return ctrl(Qt::Key_K);
    case CommandId::JoinNext:
        return ctrl(Qt::Key_J, Qt::ShiftModifier);
    case CommandId::Quit:
        return ctrl(Qt::Key_Q);
    default:
        return {};
    }
}

QKeySequence CommandTable::shareHotKey()
{
    return QKeySequence(QKeyCombination(Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier, Qt::Key_S));
}

QString CommandTable::shareHotKeyText()
{
    return KeyLabel::text(shareHotKey());
}

} // namespace quorvane
